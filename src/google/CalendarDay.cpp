#include "google/CalendarDay.h"

#include "google/PollInterval.h"

namespace quillmere {

CalendarDay::CalendarDay(RunLoop &runLoop, SettingsStore &settings, HttpClient &httpClient,
                         GoogleAuthManager &authManager)
    : runLoop_(runLoop)
    , settings_(settings)
    , calendar_(runLoop, httpClient, authManager, EndpointName::GoogleCalendar,
                QLatin1StringView("Calendar"))
{
}

void CalendarDay::start()
{
    if (timer_)
        return;
    timer_ = runLoop_.every(googlePollInterval(settings_), googlePollTolerance, [this] { ask(); });
    ask();
}

bool CalendarDay::isDuringEvent() const
{
    return events_.isBusy(runLoop_.date());
}

bool CalendarDay::isEmpty() const
{
    return day_ == runLoop_.date().date() && events_.isEmpty;
}

void CalendarDay::ask()
{
    if (isAsking_ || !calendar_.mayAsk())
        return;
    isAsking_ = true;
    const QDate day = runLoop_.date().date();
    calendar_.get(dayEventsRequest(day), [this, day](const auto &answer) {
        isAsking_ = false;
        auto events = answer ? dayEvents(*answer) : std::nullopt;
        if (!events)
            return;
        day_ = day;
        events_ = std::move(*events);
    });
}

} // namespace quillmere
