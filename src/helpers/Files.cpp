#include "helpers/Files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr std::size_t chunk = 64UL * 1024;

std::optional<std::string> readOpen(int file, std::size_t limit)
{
    struct stat status;
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string bytes;
    while (bytes.size() <= limit) {
        const std::size_t size = bytes.size();
        bytes.resize(size + chunk);
        const auto count = ::read(file, bytes.data() + size, chunk);
        bytes.resize(size + static_cast<std::size_t>(count > 0 ? count : 0));
        if (count == 0)
            return bytes;
        if (count < 0 && errno != EINTR)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> readFile(const std::string &path, std::size_t limit)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return std::nullopt;
    auto bytes = readOpen(file, limit);
    ::close(file);
    return bytes;
}

} // namespace quillmere
