#include "helpers/MailHead.h"

#include "helpers/Files.h"

#include <algorithm>
#include <charconv>

namespace quillmere {

namespace {

constexpr std::size_t longestHead = 64UL * 1024;

/// Calls `use` with each line of the header until it returns false.
template <class Use>
void eachHeaderLine(std::string_view message, Use use)
{
    while (!message.empty()) {
        const auto end = message.find('\n');
        std::string_view line = message.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.empty() || !use(line) || end == std::string_view::npos)
            return;
        message.remove_prefix(end + 1);
    }
}

std::optional<std::string_view> valueOf(std::string_view line, std::string_view name)
{
    if (!line.starts_with(name))
        return std::nullopt;
    line.remove_prefix(name.size());
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    return line;
}

} // namespace

std::optional<std::string> readHead(const std::string &path)
{
    return readBeginning(path, longestHead);
}

bool isSeenByHeader(std::string_view message)
{
    constexpr unsigned read = 0x0001;
    constexpr unsigned expunged = 0x0008;
    bool isSeen = false;
    eachHeaderLine(message, [&isSeen](std::string_view line) {
        if (const auto mozilla = valueOf(line, "X-Mozilla-Status:")) {
            unsigned bits = 0;
            std::from_chars(mozilla->data(), mozilla->data() + mozilla->size(), bits, 16);
            isSeen = (bits & (read | expunged)) != 0;
            return false; // what Thunderbird says goes before what was there
        }
        if (const auto status = valueOf(line, "Status:"))
            isSeen = isSeen || status->find('R') != std::string_view::npos;
        if (const auto status = valueOf(line, "X-Status:"))
            isSeen = isSeen || status->find('D') != std::string_view::npos;
        return true;
    });
    return isSeen;
}

std::string messageId(std::string_view message)
{
    constexpr std::string_view name("message-id:");
    std::string id;
    eachHeaderLine(message, [&](std::string_view line) {
        const auto isSame = [](char one, char other) { return (one | 0x20) == (other | 0x20); };
        if (line.size() < name.size() ||
            !std::equal(name.begin(), name.end(), line.begin(), isSame))
            return true;
        const auto begin = line.find('<');
        const auto end = line.find('>', begin);
        if (begin != std::string_view::npos && end != std::string_view::npos)
            id = line.substr(begin + 1, end - begin - 1);
        return false;
    });
    return id;
}

} // namespace quillmere
