#pragma once

#include <QColor>
#include <QImage>

namespace quillmere {

/// The most striking colour of a picture, light and vivid enough to be read on black (contrast of
/// at least 4.5 : 1). A picture without colour gives a light grey. Any thread; looks at a small
/// sample, whatever the picture's size.
QColor artworkAccent(const QImage &picture);

/// How a colour stands out from black, 1..21.
double contrastOnBlack(const QColor &color);

/// `color`, lightened until it can be read on black.
QColor readableOnBlack(const QColor &color);

} // namespace quillmere
