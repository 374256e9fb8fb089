#include "google/GmailMessages.h"

#include <QJsonArray>
#include <QUrl>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype longestHeader = 2'000; // characters

/// Senders spell the names of headers as they like.
QString header(const QJsonArray &headers, QLatin1StringView name)
{
    for (const auto &value : headers) {
        const QJsonObject entry = value.toObject();
        if (entry["name"_L1].toString().compare(name, Qt::CaseInsensitive) == 0)
            return entry["value"_L1].toString().left(longestHeader);
    }
    return {};
}

} // namespace

QString unreadMailRequest()
{
    return "/gmail/v1/users/me/messages?q="_L1 +
           QString::fromLatin1(QUrl::toPercentEncoding(u"in:inbox is:unread"_s)) +
           "&maxResults=10"_L1;
}

QString messageRequest(const QString &id)
{
    return "/gmail/v1/users/me/messages/"_L1 + QString::fromLatin1(QUrl::toPercentEncoding(id)) +
           "?format=metadata&metadataHeaders=From&metadataHeaders=Subject"_L1;
}

QStringList messageIDs(const QJsonObject &answer)
{
    QStringList ids;
    for (const auto &message : answer["messages"_L1].toArray()) {
        if (const QString id = message.toObject()["id"_L1].toString(); !id.isEmpty())
            ids.append(id);
    }
    return ids;
}

GmailMessage gmailMessage(const QJsonObject &answer)
{
    const QJsonArray headers = answer["payload"_L1]["headers"_L1].toArray();
    GmailMessage message{header(headers, "From"_L1), header(headers, "Subject"_L1)};
    bool isNumber = false;
    const qint64 date = answer["internalDate"_L1].toString().toLongLong(&isNumber);
    if (isNumber)
        message.internalDate = date;
    return message;
}

} // namespace quillmere
