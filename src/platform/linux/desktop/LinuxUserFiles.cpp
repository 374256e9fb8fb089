#include "platform/linux/desktop/LinuxUserFiles.h"

#include "platform/linux/desktop/Files.h"
#include "platform/linux/desktop/SiblingFile.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {

namespace {

using Outcome = UserFiles::Outcome;

constexpr mode_t programMode = 0755;
constexpr mode_t privateMode = 0600;
constexpr int mostCopies = 100;

tl::unexpected<QString> failed(int error)
{
    return tl::unexpected(qt_error_string(error));
}

QByteArray encodedTarget(const QString &path)
{
    return QFile::encodeName(files::resolved(path));
}

/// What changes when a file is written, replaced or touched. The name of a file that swapped places
/// changes its own change time, so that does not count.
QByteArray versionOf(const struct stat &status)
{
    const std::array<qint64, 5> parts{static_cast<qint64>(status.st_dev),
                                      static_cast<qint64>(status.st_ino), status.st_size,
                                      status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    return {reinterpret_cast<const char *>(parts.data()), sizeof parts};
}

bool isAsBefore(const QByteArray &path, const FileSnapshot &before)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0 || versionOf(status) != before.version)
        return false;
    if (before.state == FileSnapshot::State::Unreadable)
        return true;
    const auto now = files::read(QFile::decodeName(path), before.bytes.size());
    return now.state == files::Contents::State::Readable && now.bytes == before.bytes;
}

ino_t fileNumber(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 ? status.st_ino : 0;
}

/// Gives the place back to the edit that has the sibling's name, unless an even later one is there:
/// then it is that one's.
tl::expected<Outcome, QString> giveBack(SiblingFile &sibling, ino_t ours)
{
    for (ino_t comesOut = ours;;) {
        const auto edit = fileNumber(sibling.path());
        if (const int error = sibling.swapPlaces(); error != 0) {
            sibling.keep(); // it is the user's
            return failed(error);
        }
        if (fileNumber(sibling.path()) == comesOut)
            return Outcome::Changed;
        comesOut = edit;
    }
}

/// By a swap, an edit of the last moment comes out under the sibling's name and can go back.
tl::expected<Outcome, QString> takePlaceOf(const QByteArray &target, SiblingFile &sibling,
                                           const FileSnapshot &before)
{
    if (!isAsBefore(target, before))
        return Outcome::Changed;
    const auto ours = fileNumber(sibling.path());
    int error = sibling.swapPlaces();
    if (error == ENOENT)
        return Outcome::Changed;
    if (error == 0 && isAsBefore(sibling.path(), before))
        return Outcome::Replaced;
    if (error == 0)
        return giveBack(sibling, ours);
    if (error == EINVAL || error == ENOSYS)
        error = sibling.takePlace();
    if (error != 0)
        return failed(error);
    return Outcome::Replaced;
}

tl::expected<Outcome, QString> takeFreePlace(const QByteArray &target, SiblingFile &sibling)
{
    int error = sibling.takeFreePlace();
    if (error == EINVAL || error == ENOSYS) {
        struct stat status = {};
        error = ::lstat(target.constData(), &status) == 0 ? EEXIST : sibling.takePlace();
    }
    if (error == EEXIST)
        return Outcome::Changed;
    if (error != 0)
        return failed(error);
    return Outcome::Replaced;
}

/// Zero or the system's error. A second name keeps the file even on a full disk, and keeps one that
/// can't be read.
int copyTo(const QByteArray &from, const QByteArray &to)
{
    if (::link(from.constData(), to.constData()) == 0)
        return 0;
    if (errno == EEXIST || errno == ENOENT)
        return errno;
    const int linkError = errno;
    struct stat status = {};
    if (::stat(from.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return linkError;
    const auto contents = files::read(QFile::decodeName(from), status.st_size);
    if (contents.state != files::Contents::State::Readable)
        return linkError;
    SiblingFile copy(to);
    int error = copy.write(contents.bytes, status.st_mode & 07777, &status);
    if (error == 0)
        error = copy.takeFreePlace();
    return error;
}

} // namespace

bool LinuxUserFiles::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

FileSnapshot LinuxUserFiles::read(const QString &path, qint64 limit) const
{
    struct stat status = {};
    const bool isThere = ::stat(encodedTarget(path).constData(), &status) == 0;
    auto contents = files::read(path, limit);
    FileSnapshot snapshot{.bytes = std::move(contents.bytes)};
    switch (contents.state) {
    case files::Contents::State::Absent:
        return snapshot;
    case files::Contents::State::Readable:
        snapshot.state = FileSnapshot::State::Readable;
        break;
    case files::Contents::State::Unreadable:
        snapshot.state = FileSnapshot::State::Unreadable;
        break;
    }
    if (isThere)
        snapshot.version = versionOf(status);
    return snapshot;
}

tl::expected<Outcome, QString> LinuxUserFiles::replace(const QString &path, const QByteArray &bytes,
                                                       const FileSnapshot &before)
{
    const auto target = encodedTarget(path);
    SiblingFile sibling(target);
    struct stat status = {};
    const bool isThere = ::stat(target.constData(), &status) == 0;
    if (isThere != (before.state != FileSnapshot::State::Absent))
        return Outcome::Changed;
    if (isThere && !S_ISREG(status.st_mode))
        return tl::unexpected(QStringLiteral("something else is in its place"));
    const int error = isThere ? sibling.write(bytes, status.st_mode & 07777, &status)
                              : sibling.write(bytes, privateMode);
    if (error != 0)
        return failed(error);
    return isThere ? takePlaceOf(target, sibling, before) : takeFreePlace(target, sibling);
}

tl::expected<void, QString> LinuxUserFiles::installProgram(const QString &home, const QString &path,
                                                           const QByteArray &bytes)
{
    if (!QFileInfo(home).isDir() || !path.startsWith(home + u'/'))
        return tl::unexpected(QStringLiteral("there is no home directory"));
    if (!files::makePrivateDirectory(QFileInfo(path).path()))
        return failed(errno);
    SiblingFile sibling(encodedTarget(path));
    int error = sibling.write(bytes, programMode);
    if (error == 0)
        error = sibling.takePlace();
    if (error != 0)
        return failed(error);
    return {};
}

tl::expected<QString, QString> LinuxUserFiles::keepCopy(const QString &path, const QDateTime &time)
{
    const auto target = files::resolved(path);
    const QString name =
        target + QStringLiteral(".before-quillmere-") + time.toString(u"yyyyMMdd-HHmmss");
    for (int number = 1; number <= mostCopies; ++number) {
        const QString copy = number == 1 ? name : name + QStringLiteral("-%1").arg(number);
        const int error = copyTo(QFile::encodeName(target), QFile::encodeName(copy));
        if (error == 0)
            return copy;
        if (error != EEXIST)
            return failed(error);
    }
    return tl::unexpected(QStringLiteral("there are too many copies already"));
}

void LinuxUserFiles::remove(const QString &path)
{
    ::unlink(QFile::encodeName(path).constData());
}

} // namespace quillmere
