#pragma once

#include "helpers/Browsers.h"
#include "helpers/Tabs.h"

namespace quillmere {

/// What the browser itself tells: its DevTools port, or Firefox's session file.
Tabs tabsFromBrowser(const Browser &browser);

/// The browser named by the program's only argument; null, and a complaint, if it is none.
const Browser *browserFromArguments(int count, char **arguments);

} // namespace quillmere
