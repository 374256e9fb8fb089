#pragma once

#include "helpers/Browsers.h"
#include "helpers/Tabs.h"

namespace quillmere {

/// The tabs with videos that KDE's browser integration knows of the browser. It answers searches
/// only, so there is no list of all tabs, nor a front tab.
Tabs plasmaTabs(const Browser &browser);

} // namespace quillmere
