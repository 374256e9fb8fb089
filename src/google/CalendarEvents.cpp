#include "google/CalendarEvents.h"

#include "google/ISO8601.h"
#include "platform/Symbols.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>
#include <QUrl>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype longestText = 2'000; // characters

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CalendarEvents)
};

QString encoded(const QDateTime &time)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(iso8601(time)));
}

std::optional<QString> linkOf(const QJsonObject &item)
{
    for (const auto key : {"hangoutLink"_L1, "htmlLink"_L1}) {
        const auto link = item[key];
        if (link.isString() && link.toString().size() <= longestText)
            return link.toString();
    }
    return std::nullopt;
}

} // namespace

QString upcomingEventsRequest(const QDateTime &now, Duration ahead)
{
    const auto span = std::chrono::duration_cast<std::chrono::milliseconds>(ahead);
    return "/calendar/v3/calendars/primary/events?timeMin="_L1 + encoded(now) + "&timeMax="_L1 +
           encoded(now.addMSecs(span.count())) +
           "&singleEvents=true&orderBy=startTime&maxResults=5"_L1;
}

std::optional<CalendarEvent> eventToAnnounce(const QJsonObject &answer, const SeenSet &notified,
                                             const QDateTime &now)
{
    for (const auto &value : answer["items"_L1].toArray()) {
        const QJsonObject item = value.toObject();
        const QString id = item["id"_L1].toString();
        if (id.isEmpty() || notified.contains(id))
            continue;
        const auto start = parseISO8601(item["start"_L1]["dateTime"_L1].toString());
        if (!start || *start <= now)
            continue;
        const auto title = item["summary"_L1];
        return CalendarEvent{.id = id,
                             .title = title.isString() ? title.toString().left(longestText)
                                                       : Words::tr("Upcoming event"),
                             .start = *start,
                             .link = linkOf(item)};
    }
    return std::nullopt;
}

HUDContent calendarHUD(const QString &title, const QDateTime &start,
                       const std::optional<QString> &link)
{
    return {.title = title,
            .subtitle = QLocale().toString(start.toLocalTime().time(), u"h:mm AP"_s),
            .icon = QString(symbols::calendar),
            .type = HUDContent::HUDType::Calendar,
            .contentURL = link};
}

} // namespace quillmere
