#pragma once

#include <pulse/volume.h>

namespace quillmere {

/// A channel volume as a level 0..1 in whole percent: the server stores 33 % as 32.9986 %.
/// Amplification above 100 % shows full.
float shownLevel(pa_volume_t volume, bool muted);

/// The channel volumes that put the loudest channel at `level` (0..1) with the balance of
/// `balance`.
pa_cvolume scaledTo(float level, const pa_cvolume &balance);

} // namespace quillmere
