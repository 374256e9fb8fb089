#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// UTF-8, as the browser gives it.
struct Tab {
    std::string url;
    std::string title;
    bool operator==(const Tab &) const = default;
};

struct Tabs {
    Tab front;            ///< without an address where nobody knows which it is
    std::vector<Tab> all; ///< the front tab among them
    bool operator==(const Tabs &) const = default;
};

/// What stands between address and title.
inline constexpr std::string_view tabSeparator("|~|");

/// A line for the front tab, then one for each; nothing in an address or a title can be taken for
/// the end of either. Addresses nobody could want (data: in megabytes) are left out, titles are
/// cut, and of very many tabs the last ones are missing.
std::string toText(const Tabs &tabs);

/// The address as it stands in a line; empty if it is left out.
std::string plainAddress(const std::string &url);

} // namespace quillmere
