#include "google/DayEvents.h"

#include "google/ISO8601.h"

#include <QJsonArray>
#include <QUrl>

#include <algorithm>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

QString encoded(const QDateTime &time)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(iso8601(time)));
}

/// The user's own answer to the invitation.
bool isDeclined(const QJsonObject &item)
{
    const QJsonArray attendees = item["attendees"_L1].toArray();
    return std::any_of(attendees.begin(), attendees.end(), [](const QJsonValue &attendee) {
        return attendee["self"_L1].toBool() &&
               attendee["responseStatus"_L1].toString() == "declined"_L1;
    });
}

/// Where somebody works is kept as an event of the day, but nothing happens in it.
bool takesPlace(const QJsonObject &item)
{
    return item["status"_L1].toString() != "cancelled"_L1 &&
           item["eventType"_L1].toString() != "workingLocation"_L1 && !isDeclined(item);
}

std::optional<DayEvents::Span> span(const QJsonObject &item)
{
    const auto start = parseISO8601(item["start"_L1]["dateTime"_L1].toString());
    const auto end = parseISO8601(item["end"_L1]["dateTime"_L1].toString());
    if (!start || !end)
        return std::nullopt;
    return DayEvents::Span{*start, *end};
}

} // namespace

bool DayEvents::isBusy(const QDateTime &now) const
{
    return std::any_of(busy.begin(), busy.end(),
                       [&now](const Span &event) { return event.start <= now && now < event.end; });
}

QString dayEventsRequest(const QDate &day)
{
    return "/calendar/v3/calendars/primary/events?timeMin="_L1 + encoded(day.startOfDay()) +
           "&timeMax="_L1 + encoded(day.addDays(1).startOfDay()) +
           "&singleEvents=true&orderBy=startTime&maxResults=250&maxAttendees=1"_L1
           "&fields=items(start,end,status,eventType,transparency,attendees(self,responseStatus))"_L1;
}

std::optional<DayEvents> dayEvents(const QJsonObject &answer)
{
    const QJsonValue items = answer["items"_L1];
    if (!items.isArray())
        return std::nullopt;
    DayEvents day;
    for (const auto &value : items.toArray()) {
        const QJsonObject item = value.toObject();
        if (item.isEmpty() || !takesPlace(item))
            continue;
        day.isEmpty = false;
        const auto hours = span(item);
        if (hours && item["transparency"_L1].toString() != "transparent"_L1)
            day.busy.push_back(*hours);
    }
    return day;
}

} // namespace quillmere
