#include "nowplaying/Browsers.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

using L1 = QLatin1StringView;

struct Row {
    L1 part; ///< of the lower-cased identifier or name
    Browser browser;
};

constexpr Browser chrome{L1("com.google.Chrome"), L1("Google Chrome")};
constexpr Browser safari{L1("com.apple.Safari"), L1("Safari")};
constexpr Browser edge{L1("com.microsoft.edgemac"), L1("Microsoft Edge")};
constexpr Browser arc{L1("company.thebrowser.Browser"), L1("Arc")};

/// The first row that fits counts.
constexpr std::array rows{
    Row{L1("chrome"), chrome},
    Row{L1("safari"), safari},
    Row{L1("webkit"), safari},
    Row{L1("brave"), {L1("com.brave.Browser"), L1("Brave Browser")}},
    Row{L1("edgemac"), edge},
    Row{L1("microsoft edge"), edge},
    Row{L1("thebrowser"), arc},
    Row{L1("vivaldi"), {L1("com.vivaldi.Vivaldi"), L1("Vivaldi")}},
    Row{L1("opera"), {L1("com.operasoftware.Opera"), L1("Opera")}},
    Row{L1("firefox"), {L1("org.mozilla.firefox"), L1("Firefox")}},
    Row{L1("chromium"), {L1("org.chromium.Chromium"), L1("Chromium")}},
};

constexpr std::array browserParts{L1("chrome"),  L1("safari"),  L1("webkit"),  L1("browser"),
                                  L1("firefox"), L1("edgemac"), L1("vivaldi"), L1("opera"),
                                  L1("orion"),   L1("chromium")};

} // namespace

const Browser *supportedBrowser(const QString &application)
{
    const QString lower = application.toLower();
    if (lower == L1("arc")) // too short a name to look for inside others
        return &arc;
    const auto found =
        std::ranges::find_if(rows, [&lower](const Row &row) { return lower.contains(row.part); });
    return found == rows.end() ? nullptr : &found->browser;
}

QString browserBundleID(const QString &application)
{
    const Browser *browser = supportedBrowser(application);
    return browser ? QString(browser->bundleID) : application;
}

bool isBrowser(const QString &bundleID)
{
    const QString lower = bundleID.toLower();
    return std::ranges::any_of(browserParts, [&lower](L1 part) { return lower.contains(part); });
}

} // namespace quillmere
