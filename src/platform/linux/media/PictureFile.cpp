#include "platform/linux/media/PictureFile.h"

#include "platform/PictureDecoder.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {

namespace {

bool isReadable(const struct stat &info)
{
    return S_ISREG(info.st_mode) && info.st_size > 0 && info.st_size <= largestPictureFile;
}

FileStamp stampOf(const struct stat &info)
{
    return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

} // namespace

std::optional<PictureFile> readPictureFile(const QString &path, const FileStamp &known)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info {
    };
    // Looked at first, for opening a device can already do something to it.
    if (::stat(name.constData(), &info) != 0 || !isReadable(info) || stampOf(info) == known)
        return std::nullopt;
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return std::nullopt;
    // It can have become another file in between.
    if (::fstat(descriptor, &info) != 0 || !isReadable(info))
        return std::nullopt;
    PictureFile picture{stampOf(info), file.read(info.st_size)};
    return picture.bytes.size() == info.st_size ? std::optional(std::move(picture)) : std::nullopt;
}

} // namespace quillmere
