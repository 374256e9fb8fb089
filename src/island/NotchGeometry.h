#pragma once

#include "platform/Screens.h"
#include "settings/Choices.h"

#include <QSizeF>

#include <optional>

/// Where the island hangs, as functions of values. Lengths are logical units.
namespace quillmere {

/// The pill on a display without a camera housing.
inline constexpr QSizeF fallbackPillSize{126.0, 32.0};

/// Half open: a point on the seam of two frames is inside one of them only.
bool frameContains(const QRectF &frame, QPointF point);

/// Index of the screen that carries the island: the first one where the chosen one cannot be found,
/// nothing where there is no screen at all. `pointer` is read for DisplaySelection::Active only.
std::optional<qsizetype> targetScreen(DisplaySelection selection, const QList<ScreenInfo> &screens,
                                      QPointF pointer);

/// The size of the screen's camera housing; nothing where it has none.
std::optional<QSizeF> notchSize(const ScreenInfo &screen);

/// The top left corner of a panel that hangs from the screen's top edge, centred on the housing or,
/// without one, on the screen.
QPointF panelOrigin(const ScreenInfo &screen, QSizeF panelSize);

/// The idle pill: the housing's size; without one the user's width and height, each where it is set
/// (above 0, held within 60...600 and 20...100), else that of fallbackPillSize.
QSizeF collapsedSize(std::optional<QSizeF> notch, double notchWidth, double notchHeight);

} // namespace quillmere
