#include "helpers/Tabs.h"

#include <cstddef>

namespace quillmere {

namespace {

constexpr std::size_t longestAddress = 8192;
constexpr std::size_t longestTitle = 1024;
constexpr std::size_t longestText = 192UL * 1024; // who asks stops reading somewhat later

bool isControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7f;
}

/// Never splits a character of several bytes.
std::string_view cutTitle(std::string_view title)
{
    if (title.size() <= longestTitle)
        return title;
    std::size_t end = longestTitle;
    while (end > 0 && (static_cast<unsigned char>(title[end]) & 0xC0U) == 0x80U)
        --end;
    return title.substr(0, end);
}

std::string plainTitle(std::string_view title)
{
    std::string plain(cutTitle(title));
    for (char &character : plain) {
        if (isControl(character))
            character = ' ';
    }
    // Replacing the middle cannot make another separator.
    for (auto at = plain.find(tabSeparator); at != std::string::npos; at = plain.find(tabSeparator))
        plain[at + 1] = '-';
    return plain;
}

std::string line(const Tab &tab)
{
    std::string address = plainAddress(tab.url);
    if (address.empty())
        return {};
    address += tabSeparator;
    address += plainTitle(tab.title);
    address += '\n';
    return address;
}

} // namespace

std::string plainAddress(const std::string &url)
{
    if (url.size() > longestAddress)
        return {};
    std::string plain;
    for (const char character : url) {
        if (character == '|')
            plain += "%7C";
        else if (character == ' ')
            plain += "%20";
        else if (!isControl(character))
            plain += character;
    }
    return plain;
}

std::string toText(const Tabs &tabs)
{
    std::string text = line(tabs.front);
    for (const Tab &tab : tabs.all) {
        const std::string next = line(tab);
        if (text.size() + next.size() > longestText)
            break;
        text += next;
    }
    return text;
}

} // namespace quillmere
