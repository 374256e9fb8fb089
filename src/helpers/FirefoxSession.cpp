#include "helpers/FirefoxSession.h"

#include "helpers/Files.h"
#include "helpers/Json.h"

#include <lz4.h>

#include <cstdint>
#include <filesystem>
#include <sstream>
#include <vector>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view magic("mozLz40\0", 8);
constexpr std::size_t headerSize = 12; // the magic, and the unpacked size in 32 bits
constexpr std::size_t largestPacked = 32UL * 1024 * 1024;
constexpr std::size_t largestUnpacked = 64UL * 1024 * 1024;
constexpr std::size_t bestRatio = 255; // what a byte can unpack to at most
constexpr std::size_t mostProfiles = 200;

std::size_t littleEndian(std::string_view bytes)
{
    std::size_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        value = value << 8U | static_cast<unsigned char>(bytes[i]);
    return value;
}

/// The code unit of an escape "\uXXXX" at `at`; absent if there is none.
std::optional<unsigned> escapedUnit(const std::string &text, std::size_t at)
{
    if (text.compare(at, 2, "\\u") != 0 || at + 6 > text.size())
        return std::nullopt;
    const auto digits = text.substr(at + 2, 4);
    if (digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return std::nullopt;
    return static_cast<unsigned>(std::stoul(digits, nullptr, 16));
}

/// A title cut in the middle of an emoji leaves half a character behind, which Firefox writes and
/// a strict parser refuses together with all the rest.
void replaceHalfCharacters(std::string &text)
{
    const auto isIn = [](std::optional<unsigned> unit, unsigned first, unsigned last) {
        return unit && *unit >= first && *unit <= last;
    };
    for (auto at = text.find('\\'); at != std::string::npos; at = text.find('\\', at)) {
        const auto unit = escapedUnit(text, at);
        const bool isFirstHalf = isIn(unit, 0xD800, 0xDBFF);
        if (isFirstHalf && isIn(escapedUnit(text, at + 6), 0xDC00, 0xDFFF)) {
            at += 12;
            continue;
        }
        if (isFirstHalf || isIn(unit, 0xDC00, 0xDFFF))
            text.replace(at, 6, "\\ufffd");
        at += 2; // also over an escaped backslash
    }
}

Tab readTab(const json::Value &tab)
{
    const auto &entry =
        json::elementAt(json::elements(json::member(tab, "entries")), json::member(tab, "index"));
    return {json::text(json::member(entry, "url")), json::text(json::member(entry, "title"))};
}

/// Where Firefox keeps its folder of profiles: by itself, newer versions, Flatpak, snap.
std::vector<fs::path> profileRoots(const fs::path &home, const fs::path &configHome)
{
    return {home / ".mozilla/firefox", configHome / "mozilla/firefox",
            home / ".var/app/org.mozilla.firefox/.mozilla/firefox",
            home / ".var/app/org.mozilla.firefox/config/mozilla/firefox",
            home / "snap/firefox/common/.mozilla/firefox"};
}

/// The profiles below `root`, and those that its list has elsewhere.
void addProfiles(const fs::path &root, std::vector<fs::path> &profiles)
{
    std::error_code error;
    for (fs::directory_iterator entry(root, error), end; !error && entry != end;
         entry.increment(error)) {
        if (profiles.size() >= mostProfiles)
            return;
        profiles.push_back(entry->path());
    }
    constexpr std::string_view absolutePath("Path=/");
    std::istringstream list(readFile(root / "profiles.ini", 256UL * 1024).value_or(std::string()));
    for (std::string line; profiles.size() < mostProfiles && std::getline(list, line);) {
        if (line.starts_with(absolutePath))
            profiles.emplace_back(line.substr(absolutePath.size() - 1));
    }
}

/// Empty if there is none.
fs::path newestSession(const std::vector<fs::path> &profiles)
{
    fs::path newest;
    fs::file_time_type newestTime;
    for (const fs::path &profile : profiles) {
        std::error_code error;
        const fs::path file = profile / "sessionstore-backups/recovery.jsonlz4";
        const auto time = fs::last_write_time(file, error);
        if (error || (!newest.empty() && time <= newestTime))
            continue;
        newest = file;
        newestTime = time;
    }
    return newest;
}

} // namespace

std::optional<std::string> unpackMozLz4(std::string_view file)
{
    if (file.size() <= headerSize || file.size() > largestPacked || !file.starts_with(magic))
        return std::nullopt;
    const std::size_t size = littleEndian(file.substr(magic.size(), headerSize - magic.size()));
    const std::string_view packed = file.substr(headerSize);
    if (size > largestUnpacked || size > packed.size() * bestRatio)
        return std::nullopt;
    std::string unpacked(size, '\0');
    const int count = ::LZ4_decompress_safe(
        packed.data(), unpacked.data(), static_cast<int>(packed.size()), static_cast<int>(size));
    if (count < 0 || static_cast<std::size_t>(count) != size)
        return std::nullopt;
    return unpacked;
}

Tabs tabsOfSession(std::string session)
{
    replaceHalfCharacters(session);
    const auto root = json::parse(session, {"windows", "selectedWindow", "tabs", "selected",
                                            "entries", "index", "url", "title"});
    const auto &windows = json::elements(json::member(root, "windows"));
    const auto &frontWindow = json::elementAt(windows, json::member(root, "selectedWindow"));
    Tabs tabs{readTab(json::elementAt(json::elements(json::member(frontWindow, "tabs")),
                                      json::member(frontWindow, "selected"))),
              {}};
    for (const auto &window : windows) {
        for (const auto &tab : json::elements(json::member(window, "tabs")))
            tabs.all.push_back(readTab(tab));
    }
    return tabs;
}

Tabs firefoxTabs(const std::string &home, const std::string &configHome)
{
    std::vector<fs::path> profiles;
    for (const fs::path &root : profileRoots(home, configHome))
        addProfiles(root, profiles);
    const fs::path file = newestSession(profiles);
    if (file.empty())
        return {};
    const auto packed = readFile(file, largestPacked);
    auto session = packed ? unpackMozLz4(*packed) : std::nullopt;
    return session ? tabsOfSession(std::move(*session)) : Tabs();
}

} // namespace quillmere
