#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillmere {

/// Tells one content of a file from another.
struct FileStamp {
    quint64 device = 0;
    quint64 number = 0;
    qint64 size = -1;
    qint64 seconds = 0;
    qint64 nanoseconds = 0;
    bool operator==(const FileStamp &) const = default;
};

struct PictureFile {
    FileStamp stamp;
    QByteArray bytes;
};

/// Reads a regular file of at most largestPictureFile bytes that another program named; pipes and
/// devices are neither opened nor waited for. Nothing if it has still the content `known`, is
/// not there or not such a file. Any thread; waits for the disk.
std::optional<PictureFile> readPictureFile(const QString &path, const FileStamp &known);

} // namespace quillmere
