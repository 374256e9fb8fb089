#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace quillmere {

struct GmailMessage {
    QString sender;  ///< "Ada <ada@example.org>"; empty: not told
    QString subject; ///< empty: none
};

/// Path and query of the list of unread mail, and of what a message is about.
QString unreadMailRequest();
QString messageRequest(const QString &id);

/// The identifiers in an answer to the first, newest first.
QStringList messageIDs(const QJsonObject &answer);

/// What an answer to the second tells.
GmailMessage gmailMessage(const QJsonObject &answer);

} // namespace quillmere
