// Prints the address of a browser's front tab, or nothing.

#include "helpers/BrowserTabs.h"

#include <cstdio>

int main(int count, char **arguments)
{
    using namespace quillmere;
    const Browser *browser = browserFromArguments(count, arguments);
    if (!browser)
        return count == 2 ? 0 : 2;
    const std::string address = plainAddress(tabsFromBrowser(*browser).front.url);
    if (!address.empty())
        std::puts(address.c_str());
    return 0;
}
