#include "platform/linux/desktop/SiblingFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {

namespace {

int writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const auto count =
            ::write(descriptor, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        done += count;
    }
    return 0;
}

/// The name itself has to reach the disk too; where that cannot be asked for, it does later.
void syncDirectoryOf(const QByteArray &path)
{
    const auto directory = path.left(path.lastIndexOf('/') + 1);
    const int descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

SiblingFile::SiblingFile(const QByteArray &target)
    : target_(target)
    , path_(target + ".XXXXXX")
{
}

SiblingFile::~SiblingFile()
{
    if (exists_)
        ::unlink(path_.constData());
}

int SiblingFile::write(const QByteArray &bytes, mode_t mode, const struct stat *like)
{
    const int descriptor = ::mkostemp(path_.data(), O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    exists_ = true;
    int error = writeAll(descriptor, bytes);
    if (like && ::fchown(descriptor, like->st_uid, like->st_gid) != 0 &&
        ::fchown(descriptor, static_cast<uid_t>(-1), like->st_gid) != 0)
        mode &= ~(S_ISUID | S_ISGID | S_IRWXG); // rights of a group that is not the file's any more
    if (error == 0 && ::fchmod(descriptor, mode) != 0)
        error = errno;
    if (error == 0 && ::fsync(descriptor) != 0 && errno != EINVAL)
        error = errno;
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    return error;
}

int SiblingFile::takePlace()
{
    return rename(0);
}

int SiblingFile::takeFreePlace()
{
    return rename(RENAME_NOREPLACE);
}

int SiblingFile::swapPlaces()
{
    const int error = rename(RENAME_EXCHANGE);
    exists_ = true;
    return error;
}

int SiblingFile::rename(unsigned flags)
{
    if (::renameat2(AT_FDCWD, path_.constData(), AT_FDCWD, target_.constData(), flags) != 0)
        return errno;
    exists_ = false;
    syncDirectoryOf(target_);
    return 0;
}

} // namespace quillmere
