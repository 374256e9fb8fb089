#include "platform/linux/desktop/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere::files {

namespace {

constexpr int longestLinkChain = 40;
constexpr int mostSetAsideNames = 100;

Contents unreadable(const QString &problem)
{
    return {Contents::State::Unreadable, {}, problem};
}

Contents failed(int error)
{
    if (error == ENOENT || error == ENOTDIR)
        return {};
    return unreadable(qt_error_string(error));
}

QString tooLarge(qint64 limit)
{
    return QStringLiteral("larger than %1 KiB").arg(limit / 1024);
}

/// Reads an open regular file. It may grow meanwhile, so its size alone proves nothing.
Contents readDescriptor(int descriptor, qint64 limit)
{
    Contents contents{Contents::State::Readable, {}, {}};
    std::array<char, 16384> chunk;
    while (true) {
        const auto count = ::read(descriptor, chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return failed(errno);
        if (count == 0)
            return contents;
        contents.bytes.append(chunk.data(), count);
        if (contents.bytes.size() > limit)
            return unreadable(tooLarge(limit));
    }
}

/// Zero on success, else the error. Never replaces what has the new name already.
int renameToFree(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // The file system cannot promise it, as some network mounts: look first, then.
    struct stat status;
    if (::lstat(to.constData(), &status) == 0)
        return EEXIST;
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

} // namespace

Contents read(const QString &path, qint64 limit)
{
    const auto name = QFile::encodeName(path);
    struct stat status;
    if (::stat(name.constData(), &status) != 0)
        return failed(errno);
    if (!S_ISREG(status.st_mode))
        return unreadable(QStringLiteral("not a regular file"));
    if (status.st_size > limit)
        return unreadable(tooLarge(limit));
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return failed(errno);
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    auto contents = regular ? readDescriptor(descriptor, limit)
                            : unreadable(QStringLiteral("not a regular file"));
    ::close(descriptor);
    return contents;
}

QString resolved(const QString &path)
{
    QString target = path;
    for (int links = 0; links < longestLinkChain; ++links) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            break;
        target = info.symLinkTarget();
    }
    return target;
}

tl::expected<void, QString> replace(const QString &path, const QByteArray &bytes)
{
    const auto target = resolved(path);
    const QFileInfo existing(target);
    if (existing.isSymLink() || (existing.exists() && !existing.isFile()))
        return tl::unexpected(QStringLiteral("something else is in its place"));
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return tl::unexpected(file.errorString());
    if (!existing.exists())
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (file.write(bytes) != bytes.size() || !file.commit())
        return tl::unexpected(file.errorString());
    return {};
}

bool makePrivateDirectory(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const auto parent = QFileInfo(path).absolutePath();
    if (parent == path || !makePrivateDirectory(parent))
        return false;
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0 || errno == EEXIST;
}

tl::expected<QString, QString> setAside(const QString &path, const QDateTime &time)
{
    const auto target = resolved(path);
    const QString name =
        target + QStringLiteral(".unreadable-") + time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (int number = 1; number <= mostSetAsideNames; ++number) {
        const QString candidate = number == 1 ? name : name + QStringLiteral("-%1").arg(number);
        const int error = renameToFree(QFile::encodeName(target), QFile::encodeName(candidate));
        if (error == 0)
            return candidate;
        if (error != EEXIST && error != ENOTEMPTY)
            return tl::unexpected(qt_error_string(error));
    }
    return tl::unexpected(QStringLiteral("too many set aside already"));
}

} // namespace quillmere::files
