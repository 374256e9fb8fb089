#include "helpers/MailBoxes.h"
#include "helpers/MailHead.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace quillmere {

namespace {

constexpr std::size_t longestAnswer = 64UL * 1024;

bool isSetUp()
{
    const auto isThere = [](const char *variable, const char *below) {
        const char *value = std::getenv(variable);
        std::error_code error;
        return value != nullptr && *value != '\0' &&
               std::filesystem::is_regular_file(std::string(value) + below, error);
    };
    return isThere("NOTMUCH_CONFIG", "") || isThere("XDG_CONFIG_HOME", "/notmuch/default/config") ||
           isThere("HOME", "/.config/notmuch/default/config") ||
           isThere("HOME", "/.notmuch-config");
}

struct Close {
    void operator()(std::FILE *pipe) const { ::pclose(pipe); }
};

std::optional<std::string> answerTo(const char *command)
{
    std::unique_ptr<std::FILE, Close> pipe(::popen(command, "r"));
    if (!pipe)
        return std::nullopt;
    std::string answer(longestAnswer, '\0');
    answer.resize(std::fread(answer.data(), 1, answer.size(), pipe.get()));
    if (::pclose(pipe.release()) != 0)
        return std::nullopt;
    return answer;
}

} // namespace

std::optional<UnreadMessages> askNotmuch()
{
    const auto count = isSetUp()
                           ? answerTo("exec notmuch count tag:inbox and tag:unread 2>/dev/null")
                           : std::nullopt;
    UnreadMessages unread;
    if (!count || std::from_chars(count->data(), count->data() + count->size(), unread.count).ec !=
                      std::errc())
        return std::nullopt;
    if (unread.count == 0)
        return unread;
    auto files = answerTo("exec notmuch search --output=files --sort=newest-first --limit=1 "
                          "tag:inbox and tag:unread 2>/dev/null");
    const std::string file = files ? files->substr(0, files->find('\n')) : std::string();
    if (const auto head = readHead(file))
        unread.newest = {arrivalOf(file), std::filesystem::path(file).filename(), *head};
    return unread;
}

} // namespace quillmere
