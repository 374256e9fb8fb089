#pragma once

#include "island/HUDContent.h"
#include "views/HUDLook.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

namespace HUDLayout {
Q_NAMESPACE
QML_ELEMENT
enum Kind { None, Level, Battery, Message };
Q_ENUM_NS(Kind)
} // namespace HUDLayout

/// What is drawn for one HUD: everything decided, nothing left to the scene but to show it.
struct HUDFace {
    bool operator==(const HUDFace &) const = default;

    HUDLayout::Kind layout = HUDLayout::None;
    QSizeF size; ///< of the island that shows it
    QString symbol;
    double symbolSize = 20; ///< side of the glyph's box
    QImage picture;
    QString title;
    QString subtitle;
    double level = 0;       ///< 0..1
    int levelAnimation = 0; ///< ms the bar takes to a new level; 0 = it jumps
    QString figures;        ///< number at the end of the line; empty = none
    QString label;          ///< word at the end of the line, as where it is from; empty = none
    QList<QColor> barColors{Qt::white};
    bool colorsFollowTrack = false;
    bool glow = false;
    QColor boxColor; ///< behind the glyph; invalid = that of all others
    QColor accent{Qt::white};
    QString accessibleText;
};

/// `accent` is the desktop's accent colour.
HUDFace hudFace(const HUDContent &content, const HUDLook &look, const QColor &accent);

} // namespace quillmere
