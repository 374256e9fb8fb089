#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillmere {

/// How much unread mail there is, and the newest of it.
struct UnreadMail {
    qint64 count = 0;
    QString messageID{};
    QString subject{};
    QString sender{};
    std::optional<qint64> arrival{}; ///< seconds since 1970, where the source tells

    bool operator==(const UnreadMail &) const = default;
};

/// From the answer to scripts::unreadMail. Absent if it does not begin with a number.
std::optional<UnreadMail> readUnreadMail(const QByteArray &answer);

} // namespace quillmere
