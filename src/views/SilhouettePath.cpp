#include "views/SilhouettePath.h"

#include <algorithm>

namespace quillmere {

namespace {

// Rounder than a circle's quarter at the corner, flatter where it joins the straight edges: the
// eye sees no point where the curve begins.
constexpr double earHandle = 0.6;
constexpr double cornerHandle = 0.58;

} // namespace

QPainterPath silhouettePath(QSizeF frame, double cornerRadius)
{
    if (frame.width() <= 0 || frame.height() <= 0)
        return {};
    const double ear = std::min(earRadius, frame.height() / 2);
    const double radius =
        std::clamp(cornerRadius, 0.0, std::min(frame.width() / 2, frame.height() - ear));
    const double right = frame.width() + 2 * earRadius;
    const double bodyLeft = earRadius;
    const double bodyRight = right - earRadius;
    const double bottom = frame.height();
    const double near = (1 - cornerHandle) * radius;
    const double far = radius;

    QPainterPath path;
    path.moveTo(0, 0);
    path.cubicTo(earHandle * earRadius, 0, bodyLeft, (1 - earHandle) * ear, bodyLeft, ear);
    path.lineTo(bodyLeft, bottom - far);
    path.cubicTo(bodyLeft, bottom - near, bodyLeft + near, bottom, bodyLeft + far, bottom);
    path.lineTo(bodyRight - far, bottom);
    path.cubicTo(bodyRight - near, bottom, bodyRight, bottom - near, bodyRight, bottom - far);
    path.lineTo(bodyRight, ear);
    path.cubicTo(bodyRight, (1 - earHandle) * ear, right - earHandle * earRadius, 0, right, 0);
    path.closeSubpath();
    return path;
}

} // namespace quillmere
