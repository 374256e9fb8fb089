#include "helpers/Files.h"
#include "helpers/MailBoxes.h"
#include "helpers/MailHead.h"
#include "helpers/MorkFlags.h"

#include <ctime>

namespace quillmere {

namespace {

constexpr std::size_t largestPart = 16UL * 1024 * 1024; // of the file that is read
constexpr std::size_t longestHead = 64UL * 1024;
constexpr std::int64_t second = 1'000'000; // microseconds
constexpr std::string_view mark("From ");

bool endsBlankLine(std::string_view text)
{
    return text.ends_with("\n\n") || text.ends_with("\n\r\n");
}

/// Where the next message begins, from `at` on: at the file's beginning, or after a blank line. The
/// end of `text` if there is none.
std::size_t nextMessage(std::string_view text, std::size_t at)
{
    for (auto found = text.find(mark, at); found != std::string_view::npos;
         found = text.find(mark, found + 1)) {
        if (found == 0 || endsBlankLine(text.substr(0, found)))
            return found;
    }
    return text.size();
}

/// From the line that divides messages, "From somebody Sat Nov 21 08:00:00 2026", in local time.
std::int64_t arrivalIn(std::string_view line)
{
    constexpr std::size_t dateSize = 24;
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.remove_suffix(1);
    if (line.size() < dateSize)
        return 0;
    const std::string date(line.substr(line.size() - dateSize));
    std::tm parts{};
    if (::strptime(date.c_str(), "%a %b %e %H:%M:%S %Y", &parts) == nullptr)
        return 0;
    parts.tm_isdst = -1;
    return static_cast<std::int64_t>(std::mktime(&parts)) * second;
}

bool isSeen(std::string_view message, const std::optional<MorkFlags> &index)
{
    const auto told = index ? index->isSeen(messageId(message)) : std::nullopt;
    return told.value_or(isSeenByHeader(message));
}

} // namespace

UnreadMessages readMbox(const std::string &path)
{
    UnreadMessages unread;
    const auto bytes = readEnd(path, largestPart);
    const std::string_view text = bytes ? std::string_view(*bytes) : std::string_view();
    const auto index = MorkFlags::read(path + ".msf");
    std::string_view newest;
    for (auto begin = nextMessage(text, 0); begin < text.size();) {
        const auto end = nextMessage(text, begin + mark.size());
        const std::string_view message = text.substr(begin, end - begin);
        const auto header = std::min(message.find('\n'), message.size() - 1) + 1;
        if (!isSeen(message.substr(header, longestHead), index)) {
            ++unread.count;
            newest = message;
        }
        begin = end;
    }
    const auto line = newest.substr(0, newest.find('\n'));
    const auto rest = std::min(line.size() + 1, newest.size());
    unread.newest = {arrivalIn(line), std::string(line),
                     std::string(newest.substr(rest, longestHead))};
    // A Maildir tells it more exactly; so does the file, unless it has been written again since.
    const std::int64_t written = writtenAt(path);
    if (unread.newest.arrival == 0 || unread.newest.arrival == written - written % second)
        unread.newest.arrival = written;
    return unread;
}

} // namespace quillmere
