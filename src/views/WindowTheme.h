#pragma once

namespace quillmere {

class Appearance;

/// Whether a window of ours is dark: as the user chose, else like the windows of the desktop's
/// palette.
bool isWindowDark(const Appearance &appearance);

} // namespace quillmere
