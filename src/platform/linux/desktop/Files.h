#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <tl/expected.hpp>

/// Reading and replacing files that belong to the user and may be anything. Errors are texts for
/// people. Any thread; everything here may wait for the disk.
namespace quillmere::files {

struct Contents {
    enum class State { Absent, Readable, Unreadable };
    State state = State::Absent;
    QByteArray bytes;
    QString problem; ///< why it is unreadable
};

/// Reads a regular file of at most `limit` bytes. Anything else in its place is unreadable and is
/// never opened, so a pipe or a device cannot hold the reader. A dangling link is absent.
Contents read(const QString &path, qint64 limit);

/// The path a chain of links ends at, whether something is there or not.
QString resolved(const QString &path);

/// Replaces the file as a whole: whatever happens, the old or the new contents are there. Writes
/// through links, keeps the mode of an existing file and gives a new one 0600.
tl::expected<void, QString> replace(const QString &path, const QByteArray &bytes);

/// Creates what is missing of a directory path, for the user alone (0700).
bool makePrivateDirectory(const QString &path);

/// Renames what is at the end of `path` to a free name beside it that tells the time, and returns
/// the new path. Never overwrites.
tl::expected<QString, QString> setAside(const QString &path, const QDateTime &time);

} // namespace quillmere::files
