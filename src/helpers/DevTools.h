#pragma once

#include "helpers/Browsers.h"
#include "helpers/Tabs.h"

#include <string>
#include <string_view>

namespace quillmere {

/// The tabs in a DevTools target list (JSON); the tab used last comes first there.
Tabs tabsOfTargets(std::string_view list);

/// The tabs of a browser of the Chromium family whose DevTools port is open; none otherwise. Asks
/// for at most two seconds.
Tabs devToolsTabs(const Browser &browser, const std::string &home, const std::string &configHome);

} // namespace quillmere
