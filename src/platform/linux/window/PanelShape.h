#pragma once

#include <QRect>
#include <QRectF>
#include <QRegion>
#include <QSize>

/// Geometry of the panel's canvas, as functions of values.
namespace quillmere {

/// The surface the island is drawn on, in logical units. It never changes size: only what is drawn
/// inside it does. Large enough for the dashboard and the overshoot of its spring.
inline constexpr QSize canvasSize{720, 300};

/// The canvas of an island: hung from the same edge, centred on it, on whole logical units. Frames
/// with the same centre have the same canvas.
QRect canvasFor(const QRectF &island);

/// `island` in device pixels of a canvas that begins at `canvasOrigin`, grown to whole pixels.
QRect devicePixels(const QRectF &island, QPoint canvasOrigin, double scale);

/// The island's outline in device pixels: rounded at the bottom, with the two ears that run out
/// into the screen's edge. For desktops that can't blend, where everything else of the canvas must
/// go.
QRegion silhouette(const QRect &island, double scale);

} // namespace quillmere
