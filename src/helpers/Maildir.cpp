#include "helpers/Files.h"
#include "helpers/MailBoxes.h"
#include "helpers/MailHead.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <vector>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostHeaders = 500; // files looked into where flags are in there

struct Entry {
    std::int64_t arrival = 0;
    std::string path;
};

/// The digits at the beginning; zero if there are none.
std::int64_t leadingNumber(std::string_view text)
{
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// "…:2,FS"; programs on file systems without the colon write another mark.
bool isSeenByName(std::string_view name)
{
    const auto mark = name.rfind("2,");
    if (mark == std::string_view::npos || mark == 0 ||
        std::string_view(":;!").find(name[mark - 1]) == std::string_view::npos)
        return false;
    return name.substr(mark).find_first_of("ST") != std::string_view::npos; // seen or trashed
}

void collect(const std::string &folder, bool isNew, std::vector<Entry> &entries)
{
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        const std::string name = file->path().filename();
        if (name.front() != '.' && (isNew || !isSeenByName(name)))
            entries.push_back({arrivalOf(file->path()), file->path()});
    }
}

std::string uniqueName(const std::string &path)
{
    const std::string name = fs::path(path).filename();
    return name.substr(0, name.find_first_of(":;!"));
}

UnreadMessages inHeaders(const std::vector<Entry> &entries)
{
    UnreadMessages unread;
    for (std::size_t i = 0; i < std::min(entries.size(), mostHeaders); ++i) {
        const auto head = readHead(entries[i].path);
        if (!head || isSeenByHeader(*head))
            continue;
        if (unread.count++ == 0)
            unread.newest = {entries[i].arrival, uniqueName(entries[i].path), *head};
    }
    return unread;
}

} // namespace

bool isMaildir(const std::string &path)
{
    std::error_code error;
    return fs::is_directory(path + "/cur", error) &&
           (fs::is_directory(path + "/new", error) || fs::is_directory(path + "/tmp", error));
}

std::int64_t arrivalOf(const std::string &path)
{
    using namespace std::chrono_literals;
    using std::chrono::system_clock;

    // Other names begin with digits too, and a time far ahead would make all that comes look old.
    constexpr std::int64_t second = 1'000'000;
    constexpr std::int64_t earliest = 100'000'000;
    const std::int64_t latest = system_clock::to_time_t(system_clock::now() + 24h);
    const auto isTime = [latest](std::int64_t number, std::int64_t unit) {
        return number >= earliest * unit && number <= latest * unit;
    };
    const std::string name = fs::path(path).filename();
    const std::int64_t time = leadingNumber(name);
    if (isTime(time, second))
        return time;
    const auto digits = std::min(name.find_first_not_of("0123456789"), name.size());
    if (isTime(time, 1) && name.substr(digits).starts_with('.')) {
        const auto fraction = name.find(".M");
        const bool isKnown = fraction != std::string::npos;
        return time * second +
               std::clamp<std::int64_t>(
                   isKnown ? leadingNumber(std::string_view(name).substr(fraction + 2)) : 0, 0,
                   second - 1);
    }
    return writtenAt(path);
}

std::int64_t writtenAt(const std::string &path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return 0;
    return status.st_mtim.tv_sec * 1'000'000 + status.st_mtim.tv_nsec / 1000;
}

UnreadMessages readMaildir(const std::string &path, MailFlags flags)
{
    std::vector<Entry> entries;
    collect(path + "/new", true, entries);
    collect(path + "/cur", false, entries);
    std::ranges::sort(entries, std::ranges::greater(),
                      [](const Entry &entry) { return std::tie(entry.arrival, entry.path); });
    if (flags == MailFlags::InHeader)
        return inHeaders(entries);
    for (const Entry &entry : entries) { // the newest may have been moved meanwhile
        if (auto head = readHead(entry.path))
            return {entries.size(), {entry.arrival, uniqueName(entry.path), *std::move(head)}};
    }
    return {};
}

} // namespace quillmere
