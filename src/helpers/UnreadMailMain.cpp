// Prints how many unread messages the user's inboxes have and, a line each, the identifier, the
// subject and the sender of the newest of them and when it came, in seconds since 1970; "0" if
// there is none. With --source: the inboxes it looks into.

#include "helpers/MailPlaces.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using namespace quillmere;

enum ExitStatus { answered = 0, wrongArguments = 2 };

UnreadMessages read(const MailPlace &place)
{
    return place.format == MailPlace::Format::Maildir ? readMaildir(place.path, place.flags)
                                                      : readMbox(place.path);
}

void add(UnreadMessages &all, UnreadMessages some)
{
    if (some.count > 0 && (all.count == 0 || some.newest.arrival > all.newest.arrival))
        all.newest = std::move(some.newest);
    all.count += some.count;
}

void print(const UnreadMessages &unread)
{
    std::printf("%ju\n", static_cast<std::uintmax_t>(unread.count));
    if (unread.count == 0)
        return;
    const MailHeader header = readMailHeader(unread.newest.head);
    std::printf("%s\n%s\n%s\n%jd\n", (header.id.empty() ? unread.newest.name : header.id).c_str(),
                header.subject.c_str(), header.sender.c_str(),
                static_cast<std::intmax_t>(unread.newest.arrival / 1'000'000));
}

void printSource(const MailPlace &place)
{
    const char *home = std::getenv("HOME");
    const std::string_view below = home != nullptr ? home : "";
    const bool isBelow = !below.empty() && place.path.starts_with(std::string(below) + '/');
    std::printf("%s: %s%s\n", place.program, isBelow ? "~" : "",
                place.path.c_str() + (isBelow ? below.size() : 0));
}

} // namespace

int main(int count, char **arguments)
{
    const bool tellsSource = count == 2 && std::string_view(arguments[1]) == "--source";
    if (count != 1 && !tellsSource) {
        std::fputs("usage: unread-mail [--source]\n", stderr);
        return wrongArguments;
    }
    const auto notmuch = askNotmuch();
    if (notmuch && tellsSource)
        std::puts("notmuch: tag:inbox and tag:unread");
    UnreadMessages all = notmuch.value_or(UnreadMessages());
    for (const auto &places :
         {notmuch ? std::vector<MailPlace>() : commonInboxes(), programInboxes()}) {
        for (const MailPlace &place : places)
            tellsSource ? printSource(place) : add(all, read(place));
    }
    if (!tellsSource)
        print(all);
    return answered;
}
