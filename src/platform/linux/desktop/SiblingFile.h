#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <sys/stat.h>

namespace quillmere {

/// A new file beside `target` that is there to take its place. Gone when destroyed, unless it did.
/// Functions return zero or the system's error.
class SiblingFile
{
public:
    explicit SiblingFile(const QByteArray &target);
    ~SiblingFile();
    SiblingFile(const SiblingFile &) = delete;
    SiblingFile &operator=(const SiblingFile &) = delete;

    /// Creates it with these contents on the disk. `like`: whose mode and group it gets.
    int write(const QByteArray &bytes, mode_t mode, const struct stat *like = nullptr);

    /// Takes the target's name, whatever has it.
    int takePlace();

    /// Takes the target's name if nobody has it: EEXIST otherwise.
    int takeFreePlace();

    /// Exchanges names with the target; a second time undoes it. EINVAL where the file system
    /// can't.
    int swapPlaces();

    /// It stays where it is.
    void keep() { exists_ = false; }

    const QByteArray &path() const { return path_; }

private:
    int rename(unsigned flags);

    const QByteArray target_;
    QByteArray path_;
    bool exists_ = false;
};

} // namespace quillmere
