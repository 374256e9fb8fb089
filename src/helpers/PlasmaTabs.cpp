#include "helpers/PlasmaTabs.h"

#include "helpers/Processes.h"
#include "helpers/SessionBus.h"

namespace quillmere {

namespace {

constexpr const char *searchTerm = "youtu"; // in the addresses of the site and of its short links

/// The browser starts its host program itself, one for each browser.
bool isHostOf(const Browser &browser, pid_t host)
{
    const auto words = commandLine(parentOf(host));
    return !words.empty() && browserOfProgram(words.front()) == &browser;
}

/// A match: identifier, title, icon, kind, relevance, properties.
Tab readMatch(BusValues match)
{
    match.next();
    Tab tab{{}, match.text()};
    for (int skipped = 0; skipped < 4 && !match.isAtEnd(); ++skipped)
        match.next();
    tab.url = match.entry("urls").textInVariant();
    return tab;
}

} // namespace

Tabs plasmaTabs(const Browser &browser)
{
    Tabs tabs;
    const SessionBus bus;
    for (const auto &name : bus.namesLike("org.kde.plasma.browser_integration")) {
        if (!isHostOf(browser, static_cast<pid_t>(bus.processOf(name))))
            continue;
        const auto answer =
            bus.call(name, {"/TabsRunner", "org.kde.krunner1", "Match"}, {searchTerm});
        for (auto match = BusValues(answer.get()).inside(); !match.isAtEnd(); match.next())
            tabs.all.push_back(readMatch(match.inside()));
    }
    return tabs;
}

} // namespace quillmere
