#pragma once

#include "messages/AnnouncedMessages.h"
#include "messages/WatchedNotificationApp.h"
#include "platform/NotificationDatabase.h"
#include "platform/NotificationFeed.h"
#include "platform/RunLoop.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <map>
#include <optional>

namespace quillmere {

class SettingsStore;

/// How often to look; the settings are in seconds.
Duration notificationPollInterval(const SettingsStore &settings);

/// The notifications of `apps` in the database of the system's notification service, newest first.
/// Any thread; waits for the disk.
QList<ParsedNotification> storedNotifications(const NotificationDatabase &database,
                                              const QString &home,
                                              const QList<WatchedNotificationApp> &apps);

/// Announces messages of the chat applications that the user wants to hear of. They come from the
/// notification service's own database, looked at regularly, and from what is sent to the
/// notification service, seen in passing; a message that comes both ways is announced once. What
/// was there before start() never is. Main thread only.
class NotificationCenterMonitor
{
public:
    using Callback =
        std::function<void(const QString &title, const std::optional<QString> &subtitle,
                           const std::optional<QString> &body)>;

    /// `database` must outlive the background work of `runLoop`.
    NotificationCenterMonitor(RunLoop &runLoop, SettingsStore &settings,
                              const NotificationDatabase &database, NotificationFeed &feed,
                              QString home);

    Callback onNewDiscordNotification;
    Callback onNewSlackNotification;

    /// Does nothing while running. The poll interval is that of the settings now.
    void start();
    void stop();
    bool isRunning() const { return run_.has_value(); }

    /// Shows the newest notification of `app`, seen before or not. `completion` gets what to tell
    /// the user.
    void test(WatchedNotificationApp app, std::function<void(const QString &text)> completion);

private:
    /// What start() sets up; ending it releases the timer and drops a poll under way.
    struct Run {
        Run();

        Task timer;
        Task feedListener; ///< while any application is watched
        Duration interval{};
        QSet<QString> lastSeenUUIDs;
        bool hasSeenInitialState = false;
        bool isPolling = false;
        Owner owner;
    };

    void poll();
    void process(const QList<ParsedNotification> &notifications,
                 const QList<WatchedNotificationApp> &watched);
    void trimSeen(const QList<ParsedNotification> &newest);
    void followFeed();
    void announce(AnnouncedMessages::Source source, const ParsedNotification &notification,
                  const QList<WatchedNotificationApp> &watched);
    void tell(WatchedNotificationApp app, const ParsedNotification &notification) const;
    void finishTest(WatchedNotificationApp app, std::optional<ParsedNotification> newest,
                    const std::function<void(const QString &)> &completion) const;

    RunLoop &runLoop_;
    SettingsStore &settings_;
    const NotificationDatabase &database_;
    NotificationFeed &feed_;
    const QString home_;
    std::optional<Run> run_;
    AnnouncedMessages announced_;
    std::map<WatchedNotificationApp, ParsedNotification> newestOfFeed_;
    QObject context_;
    Owner owner_;
};

} // namespace quillmere
