#include "google/HttpDate.h"

#include <algorithm>

namespace quillmere {

std::optional<QByteArray> headerNamed(const HttpHeaders &headers, const QByteArray &name)
{
    const auto header = std::ranges::find(headers, name, &std::pair<QByteArray, QByteArray>::first);
    return header == headers.end() ? std::nullopt : std::optional(header->second);
}

QDateTime httpDate(const QByteArray &text)
{
    return QDateTime::fromString(
        QString::fromLatin1(text).replace(QStringLiteral("GMT"), QStringLiteral("+0000")),
        Qt::RFC2822Date);
}

} // namespace quillmere
