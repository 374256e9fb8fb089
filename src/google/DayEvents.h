#pragma once

#include <QDate>
#include <QDateTime>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace quillmere {

/// What a calendar holds for one day. What the user has declined is not in it.
struct DayEvents {
    struct Span {
        QDateTime start;
        QDateTime end;
    };

    bool isEmpty = true;
    std::vector<Span> busy; ///< events with an hour that their user is not marked as free in

    /// From the beginning of an event up to its end.
    bool isBusy(const QDateTime &now) const;
};

/// Path and query of the events of a day in the machine's time zone; no more of them is asked for
/// than dayEvents() reads.
QString dayEventsRequest(const QDate &day);

/// Nothing for an answer that has no list of events.
std::optional<DayEvents> dayEvents(const QJsonObject &answer);

} // namespace quillmere
