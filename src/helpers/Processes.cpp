#include "helpers/Processes.h"

#include "helpers/Files.h"

#include <charconv>
#include <filesystem>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr std::size_t longestCommandLine = 256UL * 1024;

std::string procFile(pid_t process, const char *name)
{
    return "/proc/" + std::to_string(process) + '/' + name;
}

/// Zero if it is no number.
pid_t toProcess(std::string_view text)
{
    pid_t process = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), process);
    return error == std::errc() && end == text.data() + text.size() ? process : 0;
}

} // namespace

std::vector<std::string> commandLine(pid_t process)
{
    auto bytes = readFile(procFile(process, "cmdline"), longestCommandLine).value_or(std::string());
    bytes.erase(bytes.find_last_not_of('\0') + 1);
    // Chromium writes a title of its own over it, with spaces where there was the end of a word.
    const char end = bytes.find('\0') == std::string::npos ? ' ' : '\0';
    std::istringstream stream(std::move(bytes));
    std::vector<std::string> words;
    for (std::string word; std::getline(stream, word, end);)
        words.push_back(word);
    return words;
}

pid_t parentOf(pid_t process)
{
    const auto status = readFile(procFile(process, "stat"), 4096).value_or(std::string());
    // "42 (name of any kind) S 1 ..."
    const auto nameEnd = status.rfind(')');
    if (nameEnd == std::string::npos || nameEnd + 4 > status.size())
        return 0;
    const auto rest = std::string_view(status).substr(nameEnd + 4);
    return toProcess(rest.substr(0, rest.find(' ')));
}

std::vector<pid_t> ownProcesses()
{
    std::vector<pid_t> processes;
    std::error_code error;
    for (std::filesystem::directory_iterator entry("/proc", error), end; !error && entry != end;
         entry.increment(error)) {
        struct stat status;
        const pid_t process = toProcess(entry->path().filename().native());
        if (process > 0 && ::stat(entry->path().c_str(), &status) == 0 &&
            status.st_uid == ::getuid())
            processes.push_back(process);
    }
    return processes;
}

} // namespace quillmere
