#include "helpers/Browsers.h"

#include <algorithm>

namespace quillmere {

namespace {

const std::vector<Browser> &browsers()
{
    static const std::vector<Browser> all{
        {"com.google.Chrome",
         {"chrome", "chromium", "chromium-browser"},
         {"google-chrome", "google-chrome-beta", "google-chrome-unstable", "chromium"},
         {".var/app/com.google.Chrome/config/google-chrome",
          ".var/app/org.chromium.Chromium/config/chromium", "snap/chromium/common/chromium"}},
        {"com.brave.Browser",
         {"brave", "brave-browser"},
         {"BraveSoftware/Brave-Browser", "BraveSoftware/Brave-Browser-Beta",
          "BraveSoftware/Brave-Browser-Nightly"},
         {".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser",
          "snap/brave/current/.config/BraveSoftware/Brave-Browser"}},
        {"com.microsoft.edgemac",
         {"msedge"},
         {"microsoft-edge", "microsoft-edge-beta", "microsoft-edge-dev"},
         {".var/app/com.microsoft.Edge/config/microsoft-edge"}},
        {"com.vivaldi.Vivaldi",
         {"vivaldi-bin", "vivaldi"},
         {"vivaldi", "vivaldi-snapshot"},
         {".var/app/com.vivaldi.Vivaldi/config/vivaldi", "snap/vivaldi/current/.config/vivaldi"}},
        {"com.operasoftware.Opera",
         {"opera"},
         {"opera", "opera-beta", "opera-developer"},
         {".var/app/com.opera.Opera/config/opera", "snap/opera/current/.config/opera"}},
        {firefoxBundle, {"firefox", "firefox-esr", "firefox-bin"}, {}, {}},
    };
    return all;
}

template <class Predicate>
const Browser *find(Predicate isWanted)
{
    const auto found = std::ranges::find_if(browsers(), isWanted);
    return found == browsers().end() ? nullptr : &*found;
}

} // namespace

const Browser *findBrowser(std::string_view bundleIdentifier)
{
    return find(
        [&](const Browser &browser) { return browser.bundleIdentifier == bundleIdentifier; });
}

const Browser *browserOfProgram(std::string_view path)
{
    const auto name = path.substr(path.rfind('/') + 1); // npos + 1 is 0
    return find([&](const Browser &browser) {
        return std::ranges::find(browser.programs, name) != browser.programs.end();
    });
}

} // namespace quillmere
