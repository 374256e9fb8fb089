#pragma once

#include "helpers/Tabs.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// What a mozLz4 file holds; absent if it is none, is damaged or is unreasonably large.
std::optional<std::string> unpackMozLz4(std::string_view file);

/// The tabs of a session as Firefox writes it (JSON), whatever was made of it.
Tabs tabsOfSession(std::string session);

/// The tabs in the newest session file of the user's profiles, a few seconds old. The file is there
/// while Firefox runs.
Tabs firefoxTabs(const std::string &home, const std::string &configHome);

} // namespace quillmere
