#pragma once

#include "platform/StatusItem.h"

#include <functional>
#include <vector>

namespace quillmere {

/// What the entries of the status item's menu do.
struct StatusMenuActions {
    std::function<void()> showIsland;
    std::function<void()> refreshNowPlaying;
    std::function<void()> checkForUpdates;
    std::function<void()> openSettings;
    std::function<void()> quit;
};

/// The menu of the status item, from top to bottom.
std::vector<StatusMenuEntry> statusMenu(const StatusMenuActions &actions);

} // namespace quillmere
