#include "messages/UnreadMail.h"

#include <QRegularExpression>
#include <QStringList>

namespace quillmere {

std::optional<UnreadMail> readUnreadMail(const QByteArray &answer)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    const QStringList lines = QString::fromUtf8(answer).trimmed().split(lineBreak);
    enum Line { Count, MessageID, Subject, Sender, Arrival };
    const auto line = [&lines](Line number) { return lines.value(number).trimmed(); };
    bool isNumber = false;
    UnreadMail mail{.count = line(Count).toLongLong(&isNumber),
                    .messageID = line(MessageID),
                    .subject = line(Subject),
                    .sender = line(Sender)};
    if (!isNumber || mail.count < 0)
        return std::nullopt;
    const qint64 arrival = line(Arrival).toLongLong(&isNumber);
    if (isNumber)
        mail.arrival = arrival;
    return mail;
}

} // namespace quillmere
