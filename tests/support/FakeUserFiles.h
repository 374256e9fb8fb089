#pragma once

#include "platform/UserFiles.h"

namespace quillmere {

/// A home without files, where none can be written.
class FakeUserFiles : public UserFiles
{
public:
    bool exists(const QString & /*path*/) const override { return false; }
    FileSnapshot read(const QString & /*path*/, qint64 /*limit*/) const override { return {}; }
    tl::expected<Outcome, QString> replace(const QString & /*path*/, const QByteArray & /*bytes*/,
                                           const FileSnapshot & /*before*/) override
    {
        return Outcome::Changed;
    }
    tl::expected<void, QString> installProgram(const QString & /*home*/, const QString & /*path*/,
                                               const QByteArray & /*bytes*/) override
    {
        return {};
    }
    tl::expected<QString, QString> keepCopy(const QString &path,
                                            const QDateTime & /*time*/) override
    {
        return path;
    }
    void remove(const QString & /*path*/) override {}
};

} // namespace quillmere
