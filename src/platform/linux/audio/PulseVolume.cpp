#include "platform/linux/audio/PulseVolume.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quillmere {

float shownLevel(pa_volume_t volume, bool muted)
{
    if (muted)
        return 0;
    const std::uint64_t percent =
        (std::uint64_t{volume} * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM;
    return static_cast<float>(std::min<std::uint64_t>(percent, 100)) / 100;
}

pa_cvolume scaledTo(float level, const pa_cvolume &balance)
{
    pa_cvolume scaled = balance;
    const double loudest = std::round(double{level} * PA_VOLUME_NORM);
    pa_cvolume_scale(&scaled, static_cast<pa_volume_t>(loudest));
    return scaled;
}

} // namespace quillmere
