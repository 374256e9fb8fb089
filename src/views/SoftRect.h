#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QRectF>

namespace quillmere {

/// A rectangle seen through a Gaussian blur: shadows and glows.
///
/// The blur of a rectangle is a product of two one-dimensional curves, so any part of it is
/// computed directly at any size and scale; nothing is blurred, stretched or kept.
struct SoftRect {
    QRectF rect;
    double bottomRadius = 0; ///< of its two lower corners
    double sigma = 1;

    /// Beyond this rectangle the blur is invisible.
    QRectF extent() const;
};

/// The pixels of `area`, as they would be blended over what is there. All in device pixels.
QImage render(const SoftRect &shape, const QColor &color, QRect area);

} // namespace quillmere
