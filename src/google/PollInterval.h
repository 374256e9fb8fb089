#pragma once

#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"

#include <algorithm>

namespace quillmere {

/// How often Google is asked, as the user wants it but not more often than every 30 s.
inline Duration googlePollInterval(const SettingsStore &settings)
{
    return std::max<Duration>(seconds(settings.googlePollInterval.get()), std::chrono::seconds(30));
}

inline constexpr Duration googlePollTolerance = std::chrono::seconds(5);

} // namespace quillmere
