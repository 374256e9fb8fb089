#include "platform/linux/window/PanelShape.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double earRadius = 6.0;

/// How much of a row `distance` below the centre of a circle lies outside it, towards one side.
double beyondCircle(double radius, double distance)
{
    return radius - std::sqrt(std::max(0.0, radius * radius - distance * distance));
}

/// The bottom radius of an island of this height: that of the idle pill, of a HUD of one line or
/// more, of the dashboard.
double bottomRadius(double height)
{
    if (height < 44)
        return 10;
    if (height < 45)
        return 22;
    return height < 120 ? 24 : 28;
}

} // namespace

QRect canvasFor(const QRectF &island)
{
    // Frames around one centre differ in the last bits of it; they must not make the canvas jump.
    constexpr double noise = 1e-3;
    return {
        QPoint(static_cast<int>(std::floor(island.center().x() - canvasSize.width() / 2.0 + noise)),
               static_cast<int>(std::floor(island.top() + noise))),
        canvasSize};
}

QRect devicePixels(const QRectF &island, QPoint canvasOrigin, double scale)
{
    const QRectF inside = island.translated(-QPointF(canvasOrigin));
    return QRectF(inside.topLeft() * scale, inside.size() * scale).toAlignedRect();
}

QRegion silhouette(const QRect &island, double scale)
{
    const double ear = earRadius * scale;
    const double radius = std::min(bottomRadius(island.height() / scale) * scale,
                                   std::min(island.width() / 2.0, double(island.height())));
    QRegion outline;
    for (int row = 0; row < island.height(); ++row) {
        const double middle = row + 0.5;
        const double fromBottom = island.height() - middle;
        const double inset = fromBottom < radius ? beyondCircle(radius, radius - fromBottom) : 0;
        const double outset = middle < ear ? beyondCircle(ear, ear - middle) : 0;
        const int reach = static_cast<int>(std::lround(outset - inset));
        outline += QRect(island.left(), island.top() + row, island.width(), 1)
                       .adjusted(-reach, 0, reach, 0);
    }
    return outline;
}

} // namespace quillmere
