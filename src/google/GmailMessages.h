#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillmere {

struct GmailMessage {
    QString sender;  ///< "Ada <ada@example.org>"; empty: not told
    QString subject; ///< empty: none

    /// When Google took it in, by its clock, in ms since 1970; absent: not told.
    std::optional<qint64> internalDate{};
};

/// Path and query of the list of unread mail, and of what a message is about.
QString unreadMailRequest();
QString messageRequest(const QString &id);

/// The identifiers in an answer to the first, newest first.
QStringList messageIDs(const QJsonObject &answer);

/// What an answer to the second tells.
GmailMessage gmailMessage(const QJsonObject &answer);

} // namespace quillmere
