#include "helpers/DevTools.h"

#include "helpers/Files.h"
#include "helpers/Json.h"
#include "helpers/LoopbackHttp.h"
#include "helpers/Processes.h"

#include <array>
#include <charconv>
#include <chrono>
#include <optional>
#include <set>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using Deadline = std::chrono::steady_clock::time_point;

constexpr auto timeForAll = 2000ms;
constexpr auto timeForOne = 1000ms; // a stranger's silent server may have got the port since
constexpr std::size_t largestList = 8UL * 1024 * 1024;

/// Titles come ready for a web page.
std::string unescapeHtml(const std::string &text)
{
    constexpr std::array<std::pair<std::string_view, char>, 5> entities{
        {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}}};
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        plain += text[at];
        for (const auto &[entity, character] : entities) {
            if (text.compare(at, entity.size(), entity) != 0)
                continue;
            plain.back() = character;
            at += entity.size() - 1;
            break;
        }
    }
    return plain;
}

/// The port that the browser wrote into its folder of profiles when it opened it.
std::optional<std::uint16_t> portIn(const std::string &profiles)
{
    const auto text = readFile(profiles + "/DevToolsActivePort", 1024).value_or(std::string());
    std::uint16_t port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isLine = end == text.data() + text.size() || *end == '\n';
    return error == std::errc() && isLine && port > 0 ? std::optional(port) : std::nullopt;
}

std::vector<std::string> usualFolders(const Browser &browser, const std::string &home,
                                      const std::string &configHome)
{
    std::vector<std::string> folders;
    for (const auto config : browser.configs)
        folders.push_back(configHome + '/' + std::string(config));
    for (const auto package : browser.packages)
        folders.push_back(home + '/' + std::string(package));
    return folders;
}

/// The folders that running instances were told to use.
std::vector<std::string> chosenFolders(const Browser &browser)
{
    constexpr std::string_view option("--user-data-dir=");
    std::vector<std::string> folders;
    for (const pid_t process : ownProcesses()) {
        const auto words = commandLine(process);
        if (words.empty() || browserOfProgram(words.front()) != &browser)
            continue;
        for (const std::string &word : words) {
            if (word.starts_with(option))
                folders.push_back(word.substr(option.size()));
        }
    }
    return folders;
}

Tabs askEach(const std::vector<std::string> &folders, std::set<std::uint16_t> &asked,
             Deadline deadline)
{
    for (const std::string &folder : folders) {
        const auto port = portIn(folder);
        if (!port || !asked.insert(*port).second)
            continue;
        const auto limit = std::min(deadline, std::chrono::steady_clock::now() + timeForOne);
        const auto list = getFromLoopback(*port, "/json/list", largestList, limit);
        Tabs tabs = list ? tabsOfTargets(*list) : Tabs();
        if (!tabs.all.empty())
            return tabs;
    }
    return {};
}

} // namespace

Tabs tabsOfTargets(std::string_view list)
{
    Tabs tabs;
    const auto targets = json::parse(list, {"type", "url", "title"});
    for (const auto &target : json::elements(targets)) {
        Tab tab{json::text(json::member(target, "url")),
                unescapeHtml(json::text(json::member(target, "title")))};
        const bool isTab =
            json::text(json::member(target, "type")) == "page" && !tab.url.starts_with("devtools:");
        if (isTab && !tab.url.empty())
            tabs.all.push_back(std::move(tab));
    }
    if (!tabs.all.empty())
        tabs.front = tabs.all.front();
    return tabs;
}

Tabs devToolsTabs(const Browser &browser, const std::string &home, const std::string &configHome)
{
    const Deadline deadline = std::chrono::steady_clock::now() + timeForAll;
    std::set<std::uint16_t> asked;
    Tabs tabs = askEach(usualFolders(browser, home, configHome), asked, deadline);
    if (tabs.all.empty())
        tabs = askEach(chosenFolders(browser), asked, deadline);
    return tabs;
}

} // namespace quillmere
