#pragma once

#include "google/DayEvents.h"
#include "google/GoogleApi.h"

namespace quillmere {

class SettingsStore;

/// Knows what the user's Google calendar holds today: asked at once, and again as often as Google
/// is asked for news. As long as Google does not answer, what was known of this day holds. Main
/// thread only.
class CalendarDay
{
public:
    CalendarDay(RunLoop &runLoop, SettingsStore &settings, HttpClient &httpClient,
                GoogleAuthManager &authManager);

    /// Does nothing while running. The interval is that of the setting now.
    void start();
    void stop() { timer_.cancel(); }

    /// Whether an event is going on; false while nothing is known.
    bool isDuringEvent() const;

    /// Whether there is no event today at all; false while nothing is known.
    bool isEmpty() const;

private:
    void ask();

    RunLoop &runLoop_;
    SettingsStore &settings_;
    GoogleApi calendar_;
    Task timer_;
    bool isAsking_ = false;
    QDate day_; ///< that the events are of; invalid before an answer
    DayEvents events_;
};

} // namespace quillmere
