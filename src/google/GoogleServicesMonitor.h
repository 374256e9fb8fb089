#pragma once

#include "google/GmailMessages.h"
#include "google/GoogleApi.h"
#include "google/SeenSet.h"

#include <QDateTime>

#include <functional>

namespace quillmere {

class SettingsStore;
struct CalendarEvent;

/// Asks Gmail for new unread mail and Google Calendar for an event about to begin. What is unread
/// when it begins to ask, or begins again after Gmail was not wanted, is no news. Main thread only.
class GoogleServicesMonitor
{
public:
    GoogleServicesMonitor(RunLoop &runLoop, SettingsStore &settings, HttpClient &httpClient,
                          GoogleAuthManager &authManager);

    /// Once for each new message; a text is empty if the message does not tell.
    std::function<void(const QString &sender, const QString &subject)> onNewGmailMessage;

    /// Once for each event.
    std::function<void(const QString &title, const QDateTime &start,
                       const std::optional<QString> &link)>
        onUpcomingEvent;

    /// Does nothing while running. The poll interval is that of the setting now; the first poll
    /// comes after it.
    void start();

    /// A poll that runs goes on to its end.
    void stop() { timer_.cancel(); }
    bool isRunning() const { return static_cast<bool>(timer_); }

    /// Asks now what the settings want; a service that is still being asked is left out.
    void poll();

private:
    void pollGmail();
    void takeInbox(const QStringList &ids);
    void announceMessages();
    void pollCalendar();
    void announce(const CalendarEvent &event);

    RunLoop &runLoop_;
    SettingsStore &settings_;
    GoogleApi gmail_;
    GoogleApi calendar_;
    Task timer_;
    bool isPollingGmail_ = false;
    bool isPollingCalendar_ = false;
    SeenSet seenMessageIDs_;
    bool hasSeenInitialGmailState_ = false;
    qint64 oldestNews_ = 0;   ///< by Google's clock, in ms since 1970
    QStringList unannounced_; ///< of the poll that runs, the oldest last
    SeenSet notifiedEventIDs_;
};

} // namespace quillmere
