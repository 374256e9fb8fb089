// Prints the tabs of a browser: the front tab, then every tab, a line each: address, "|~|", title.
// Prints nothing for a browser that is not running or does not tell.

#include "helpers/BrowserTabs.h"
#include "helpers/PlasmaTabs.h"

#include <cstdio>

int main(int count, char **arguments)
{
    using namespace quillmere;
    const Browser *browser = browserFromArguments(count, arguments);
    if (!browser)
        return count == 2 ? 0 : 2;
    Tabs tabs = tabsFromBrowser(*browser);
    if (tabs.all.empty())
        tabs = plasmaTabs(*browser);
    std::fputs(toText(tabs).c_str(), stdout);
    return 0;
}
