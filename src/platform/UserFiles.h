#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <tl/expected.hpp>

namespace quillmere {

/// A file as it was at one moment.
struct FileSnapshot {
    enum class State { Absent, Readable, Unreadable };
    State state = State::Absent;
    QByteArray bytes{};
    QByteArray version{}; ///< differs once anybody has touched the file
};

/// Files of other programs in the user's home, changed without ever getting in the way of those
/// programs: a file is replaced as a whole, at the end of its links, and keeps its mode. Errors are
/// texts for people. Any thread; everything here may wait for the disk.
class UserFiles
{
public:
    enum class Outcome { Replaced, Changed };

    virtual ~UserFiles() = default;

    /// Whether there is something, be it at the end of a link.
    virtual bool exists(const QString &path) const = 0;

    virtual FileSnapshot read(const QString &path, qint64 limit) const = 0;

    /// Replaces the file, unless it is no longer the one of `before`: then it stays as it is. An
    /// absent one is created for the user alone, in a directory that is there.
    virtual tl::expected<Outcome, QString> replace(const QString &path, const QByteArray &bytes,
                                                   const FileSnapshot &before) = 0;

    /// Writes a program everybody may read and run (0755), whatever was there, and creates the
    /// missing directories below `home`.
    virtual tl::expected<void, QString> installProgram(const QString &home, const QString &path,
                                                       const QByteArray &bytes) = 0;

    /// Keeps the file, as it is now, also under a free name beside it that tells the time.
    virtual tl::expected<QString, QString> keepCopy(const QString &path, const QDateTime &time) = 0;

    virtual void remove(const QString &path) = 0;
};

} // namespace quillmere
