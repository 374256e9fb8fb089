#pragma once

#include <QColor>

namespace quillmere {

class Appearance;

/// The user's accent colour, else the desktop's highlight, as light as it has to be on black.
QColor desktopAccent(const Appearance &appearance);

} // namespace quillmere
