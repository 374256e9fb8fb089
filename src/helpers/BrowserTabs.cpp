#include "helpers/BrowserTabs.h"

#include "helpers/DevTools.h"
#include "helpers/FirefoxSession.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quillmere {

namespace {

std::string environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

} // namespace

Tabs tabsFromBrowser(const Browser &browser)
{
    const std::string home = environment("HOME");
    std::string configHome = environment("XDG_CONFIG_HOME");
    if (!configHome.starts_with('/'))
        configHome = home + "/.config";
    return browser.bundleIdentifier == firefoxBundle ? firefoxTabs(home, configHome)
                                                     : devToolsTabs(browser, home, configHome);
}

const Browser *browserFromArguments(int count, char **arguments)
{
    if (count == 2)
        return findBrowser(arguments[1]);
    std::fprintf(stderr, "usage: %s BUNDLE_IDENTIFIER\n", arguments[0]);
    return nullptr;
}

} // namespace quillmere
