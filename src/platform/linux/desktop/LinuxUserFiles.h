#pragma once

#include "platform/UserFiles.h"

namespace quillmere {

/// UserFiles on POSIX calls. A file whose file system can neither swap nor link names is still
/// replaced as a whole; then an edit within the last microseconds before it can go unnoticed.
class LinuxUserFiles : public UserFiles
{
public:
    bool exists(const QString &path) const override;
    FileSnapshot read(const QString &path, qint64 limit) const override;
    tl::expected<Outcome, QString> replace(const QString &path, const QByteArray &bytes,
                                           const FileSnapshot &before) override;
    tl::expected<void, QString> installProgram(const QString &home, const QString &path,
                                               const QByteArray &bytes) override;
    tl::expected<QString, QString> keepCopy(const QString &path, const QDateTime &time) override;
    void remove(const QString &path) override;
};

} // namespace quillmere
