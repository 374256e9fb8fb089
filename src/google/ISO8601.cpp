#include "google/ISO8601.h"

#include <QTimeZone>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qsizetype timeLength = 19; // "2026-05-01T10:00:00"
constexpr qsizetype mostDigits = 9;
constexpr int longestOffset = 14 * 3600;

bool areDigits(QStringView text)
{
    return std::ranges::all_of(text, [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
}

/// Seconds east of Greenwich in "Z", "+02:00" or "+0200".
std::optional<int> offsetOf(QStringView text)
{
    if (text == u"Z")
        return 0;
    const bool hasColon = text.size() == 6 && text[3] == u':';
    if (!hasColon && text.size() != 5)
        return std::nullopt;
    const QStringView hours = text.mid(1, 2);
    const QStringView minutes = text.last(2);
    if ((text[0] != u'+' && text[0] != u'-') || !areDigits(hours) || !areDigits(minutes) ||
        minutes.toInt() > 59)
        return std::nullopt;
    const int offset = hours.toInt() * 3600 + minutes.toInt() * 60;
    if (offset > longestOffset)
        return std::nullopt;
    return text[0] == u'-' ? -offset : offset;
}

/// The digits after a decimal point at the beginning, as milliseconds; takes them off.
std::optional<int> takeFraction(QStringView &text)
{
    if (!text.startsWith(u'.'))
        return 0;
    const auto end = std::ranges::find_if_not(text.begin() + 1, text.end(),
                                              [](QChar letter) { return letter.isDigit(); });
    const QStringView digits = text.mid(1, end - text.begin() - 1);
    if (digits.isEmpty() || digits.size() > mostDigits || !areDigits(digits))
        return std::nullopt;
    text = text.mid(digits.size() + 1);
    return QString(digits.toString() + QStringLiteral("00")).left(3).toInt();
}

} // namespace

std::optional<QDateTime> parseISO8601(const QString &text)
{
    QStringView rest = QStringView(text).mid(timeLength);
    const auto milliseconds = takeFraction(rest);
    const auto offset = offsetOf(rest);
    if (!milliseconds || !offset || text[10] != u'T')
        return std::nullopt;
    // Apart, as together they would be a moment of this machine's time zone, where it may not
    // exist.
    const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    const QTime time = QTime::fromString(text.mid(11, 8), QStringLiteral("HH:mm:ss"));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::OffsetFromUTC, *offset).addMSecs(*milliseconds);
}

QString iso8601(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODate);
}

} // namespace quillmere
