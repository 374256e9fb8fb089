#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// How a browser is found on this system.
struct Browser {
    std::string_view bundleIdentifier;
    std::vector<std::string_view> programs; ///< names of its executables
    std::vector<std::string_view> configs;  ///< its folders of profiles below ~/.config
    std::vector<std::string_view> packages; ///< the same below ~, as Flatpak and snap have them
};

/// Null for a browser that is not known.
const Browser *findBrowser(std::string_view bundleIdentifier);

/// The browser that runs under an executable's path or name; null if it is none.
const Browser *browserOfProgram(std::string_view path);

inline constexpr std::string_view firefoxBundle("org.mozilla.firefox");

} // namespace quillmere
