#pragma once

#include <QPainterPath>
#include <QSizeF>

namespace quillmere {

/// Where the island meets the screen's edge it flares out by this much on either side.
inline constexpr double earRadius = 6;

/// The island's outline. `frame` is the island without its ears; the path is wider by one ear on
/// each side and starts at (0, 0), its flat top on y = 0. Radii larger than the frame has room for
/// are cut down.
QPainterPath silhouettePath(QSizeF frame, double cornerRadius);

} // namespace quillmere
