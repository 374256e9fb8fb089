#pragma once

#include "platform/Listeners.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

namespace quillmere {

/// One screen, as values: nothing here outlives a hot-unplug. Lengths are logical units, global,
/// y growing downwards.
struct ScreenInfo {
    QString name;
    QRectF frame;
    bool isMain = false;
    bool isBuiltIn = false;
    double topInset = 0;                     ///< height of the camera housing; 0 = none
    std::optional<QRectF> auxiliaryTopLeft;  ///< the strip left of the housing
    std::optional<QRectF> auxiliaryTopRight; ///< the strip right of the housing

    bool operator==(const ScreenInfo &) const = default;
};

/// The screens of the desktop. There may be none for a while. Main thread only.
class Screens
{
public:
    virtual ~Screens() = default;
    virtual QList<ScreenInfo> screens() const = 0;
    virtual QPointF pointerPosition() const = 0;
    virtual Task onParametersChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
