#include "helpers/Files.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr std::size_t chunk = 64UL * 1024;

/// A file open for reading; negative if it is no regular one.
class RegularFile
{
public:
    explicit RegularFile(const std::string &path)
        : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
        if (file_ >= 0 && (::fstat(file_, &status_) != 0 || !S_ISREG(status_.st_mode)))
            close();
    }
    ~RegularFile() { close(); }
    RegularFile(const RegularFile &) = delete;
    RegularFile &operator=(const RegularFile &) = delete;

    bool isOpen() const { return file_ >= 0; }
    off_t size() const { return status_.st_size; }

    /// Up to `limit` bytes, and up to a piece more.
    std::optional<std::string> read(std::size_t limit, off_t from = 0) const
    {
        std::string bytes;
        while (bytes.size() <= limit) {
            const std::size_t size = bytes.size();
            bytes.resize(size + chunk);
            const auto count =
                ::pread(file_, bytes.data() + size, chunk, from + static_cast<off_t>(size));
            bytes.resize(size + static_cast<std::size_t>(count > 0 ? count : 0));
            if (count == 0)
                break;
            if (count < 0 && errno != EINTR)
                return std::nullopt;
        }
        return bytes;
    }

private:
    void close()
    {
        if (file_ >= 0)
            ::close(file_);
        file_ = -1;
    }

    int file_;
    struct stat status_ {
    };
};

} // namespace

std::optional<std::string> readFile(const std::string &path, std::size_t limit)
{
    const RegularFile file(path);
    auto bytes = file.isOpen() ? file.read(limit) : std::nullopt;
    return bytes && bytes->size() <= limit ? std::move(bytes) : std::nullopt;
}

std::optional<std::string> readBeginning(const std::string &path, std::size_t limit)
{
    const RegularFile file(path);
    auto bytes = file.isOpen() ? file.read(limit) : std::nullopt;
    if (bytes && bytes->size() > limit)
        bytes->resize(limit);
    return bytes;
}

std::optional<std::string> readEnd(const std::string &path, std::size_t limit)
{
    const RegularFile file(path);
    if (!file.isOpen())
        return std::nullopt;
    return file.read(limit, std::max<off_t>(0, file.size() - static_cast<off_t>(limit)));
}

} // namespace quillmere
