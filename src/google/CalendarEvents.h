#pragma once

#include "google/SeenSet.h"
#include "island/HUDContent.h"
#include "platform/Time.h"

#include <QDateTime>
#include <QJsonObject>

#include <optional>

namespace quillmere {

struct CalendarEvent {
    QString id;
    QString title; ///< "Upcoming event" if it has none
    QDateTime start;
    std::optional<QString> link; ///< of its meeting, else its page in the calendar
};

/// Path and query of the events between `now` and `ahead` later.
QString upcomingEventsRequest(const QDateTime &now, Duration ahead);

/// The first event in the answer that has not been notified and begins after `now`. One that has
/// no hour, as it lasts all day, is none.
std::optional<CalendarEvent> eventToAnnounce(const QJsonObject &answer, const SeenSet &notified,
                                             const QDateTime &now);

/// The time in the machine's time zone.
HUDContent calendarHUD(const QString &title, const QDateTime &start,
                       const std::optional<QString> &link);

} // namespace quillmere
