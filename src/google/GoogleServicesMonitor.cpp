#include "google/GoogleServicesMonitor.h"

#include "google/CalendarEvents.h"
#include "google/PollInterval.h"
#include "settings/SettingsStore.h"

namespace quillmere {

namespace {

constexpr double secondsPerMinute = 60;

/// What Google has taken in is found by a search only a moment later: of that age it can be news.
constexpr std::chrono::milliseconds searchDelay = std::chrono::minutes(5);

} // namespace

GoogleServicesMonitor::GoogleServicesMonitor(RunLoop &runLoop, SettingsStore &settings,
                                             HttpClient &httpClient, GoogleAuthManager &authManager)
    : runLoop_(runLoop)
    , settings_(settings)
    , gmail_(runLoop, httpClient, authManager, EndpointName::Gmail, QLatin1StringView("Gmail"))
    , calendar_(runLoop, httpClient, authManager, EndpointName::GoogleCalendar,
                QLatin1StringView("Calendar"))
{
}

void GoogleServicesMonitor::start()
{
    if (isRunning())
        return;
    timer_ = runLoop_.every(googlePollInterval(settings_), googlePollTolerance, [this] { poll(); });
}

void GoogleServicesMonitor::poll()
{
    if (settings_.showGmailHUD.get())
        pollGmail();
    else
        hasSeenInitialGmailState_ = false;
    if (settings_.showGoogleCalendarHUD.get())
        pollCalendar();
}

void GoogleServicesMonitor::pollGmail()
{
    if (isPollingGmail_ || !gmail_.mayAsk())
        return;
    isPollingGmail_ = true;
    gmail_.get(unreadMailRequest(), [this](const auto &answer) {
        isPollingGmail_ = false;
        if (answer)
            takeInbox(messageIDs(*answer));
    });
}

/// Only the newest are listed. Once some of them are read, older ones take their places, which are
/// no news for being listed the first time: their dates tell. Both dates are Google's, so that it
/// does not matter what this machine takes for the time.
void GoogleServicesMonitor::takeInbox(const QStringList &ids)
{
    if (!hasSeenInitialGmailState_)
        oldestNews_ = gmail_.answeredAt().toMSecsSinceEpoch() - searchDelay.count();
    unannounced_.clear();
    for (const QString &id : ids) {
        if (seenMessageIDs_.insert(id) && hasSeenInitialGmailState_)
            unannounced_.append(id);
    }
    hasSeenInitialGmailState_ = true;
    announceMessages();
}

/// The newest last, as it is the one that stays on show.
void GoogleServicesMonitor::announceMessages()
{
    if (unannounced_.isEmpty())
        return;
    isPollingGmail_ = true;
    gmail_.get(messageRequest(unannounced_.takeLast()), [this](const auto &answer) {
        isPollingGmail_ = false;
        if (!answer)
            return;
        const GmailMessage message = gmailMessage(*answer);
        if (onNewGmailMessage && message.internalDate.value_or(oldestNews_) >= oldestNews_)
            onNewGmailMessage(message.sender, message.subject);
        announceMessages();
    });
}

void GoogleServicesMonitor::pollCalendar()
{
    if (isPollingCalendar_ || !calendar_.mayAsk())
        return;
    isPollingCalendar_ = true;
    const Duration ahead = seconds(settings_.googleCalendarAlertMinutes.get() * secondsPerMinute);
    calendar_.get(upcomingEventsRequest(runLoop_.date(), ahead), [this](const auto &answer) {
        isPollingCalendar_ = false;
        if (!answer)
            return;
        if (const auto event = eventToAnnounce(*answer, notifiedEventIDs_, runLoop_.date()))
            announce(*event);
    });
}

void GoogleServicesMonitor::announce(const CalendarEvent &event)
{
    notifiedEventIDs_.insert(event.id);
    if (onUpcomingEvent)
        onUpcomingEvent(event.title, event.start, event.link);
}

} // namespace quillmere
