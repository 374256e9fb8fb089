#include "messages/NotificationCenterMonitor.h"

#include "messages/NotificationPayload.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration shortestInterval = 5s;
constexpr Duration tolerance = 2s;
constexpr Duration deliverySlack = 10s; // for a service that stores what it shows a little later
constexpr qsizetype mostSeen = 100;
constexpr qsizetype seenAfterTrimming = 50;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(NotificationCenterMonitor)
};

QStringList databaseFiles(const QString &home)
{
    return {home + QStringLiteral("/Library/Group Containers/group.com.apple.usernoted/db2/db"),
            home +
                QStringLiteral("/Library/Application Support/com.apple.notificationcenter/db2/db")};
}

/// What both sources have.
QString comparableText(WatchedNotificationApp app, const ParsedNotification &notification)
{
    return matchKey(app) + u'\n' + notification.title + u'\n' +
           notification.body.value_or(QString());
}

} // namespace

Duration notificationPollInterval(const SettingsStore &settings)
{
    std::optional<Duration> smallest;
    const auto collect = [&](bool isShown, double interval) {
        if (isShown)
            smallest = std::min(smallest.value_or(seconds(interval)), seconds(interval));
    };
    collect(settings.showDiscordHUD.get(), settings.discordPollInterval.get());
    collect(settings.showSlackHUD.get(), settings.slackPollInterval.get());
    return std::max(smallest.value_or(shortestInterval), shortestInterval);
}

QList<ParsedNotification> storedNotifications(const NotificationDatabase &database,
                                              const QString &home,
                                              const QList<WatchedNotificationApp> &apps)
{
    const auto isWanted = [&apps](const QString &appID) {
        return matchingApp(appID, apps).has_value();
    };
    for (const QString &file : databaseFiles(home)) {
        QList<ParsedNotification> notifications;
        for (const NotificationRow &row : database.newestRows(file, isWanted)) {
            if (auto notification = parsedNotification(row))
                notifications.append(*std::move(notification));
        }
        if (!notifications.isEmpty())
            return notifications;
    }
    return {};
}

NotificationCenterMonitor::Run::Run() = default;

NotificationCenterMonitor::NotificationCenterMonitor(RunLoop &runLoop, SettingsStore &settings,
                                                     const NotificationDatabase &database,
                                                     NotificationFeed &feed, QString home)
    : runLoop_(runLoop)
    , settings_(settings)
    , database_(database)
    , feed_(feed)
    , home_(std::move(home))
{
    QObject::connect(&settings_, &SettingsStore::didChange, &context_, [this](const QString &key) {
        if (key == settings_.showDiscordHUD.key() || key == settings_.showSlackHUD.key())
            followFeed();
    });
}

void NotificationCenterMonitor::start()
{
    if (isRunning())
        return;
    run_.emplace();
    announced_.clear();
    poll();
    followFeed();
    run_->interval = notificationPollInterval(settings_);
    run_->timer = runLoop_.every(run_->interval, tolerance, [this] { poll(); });
}

void NotificationCenterMonitor::stop()
{
    run_.reset();
}

void NotificationCenterMonitor::poll()
{
    const auto watched = watchedApps(settings_);
    if (watched.isEmpty() || std::exchange(run_->isPolling, true))
        return;
    runLoop_.background(
        run_->owner,
        [&database = database_, home = home_, watched] {
            return storedNotifications(database, home, watched);
        },
        [this, watched](const QList<ParsedNotification> &notifications) {
            run_->isPolling = false;
            process(notifications, watched);
        });
}

void NotificationCenterMonitor::process(const QList<ParsedNotification> &notifications,
                                        const QList<WatchedNotificationApp> &watched)
{
    const Owner::Reference alive = run_->owner.reference();
    const bool isSeeding = !run_->hasSeenInitialState;
    for (const ParsedNotification &notification : notifications) {
        if (run_->lastSeenUUIDs.contains(notification.uuid))
            continue;
        run_->lastSeenUUIDs.insert(notification.uuid);
        if (!isSeeding)
            announce(AnnouncedMessages::Source::Polled, notification, watched);
        if (alive.expired()) // the callback has stopped us
            return;
    }
    run_->hasSeenInitialState = true;
    trimSeen(notifications);
}

/// Any of them may stay; with those read just now, nothing comes up again at the next poll.
void NotificationCenterMonitor::trimSeen(const QList<ParsedNotification> &newest)
{
    auto &seen = run_->lastSeenUUIDs;
    if (seen.size() <= mostSeen)
        return;
    QSet<QString> kept;
    for (const ParsedNotification &notification :
         newest.first(std::min(newest.size(), seenAfterTrimming)))
        kept.insert(notification.uuid);
    for (auto uuid = seen.cbegin(); kept.size() < seenAfterTrimming; ++uuid)
        kept.insert(*uuid);
    seen = kept;
}

void NotificationCenterMonitor::followFeed()
{
    if (!run_)
        return;
    if (watchedApps(settings_).isEmpty()) {
        run_->feedListener.cancel();
        return;
    }
    if (run_->feedListener)
        return;
    run_->feedListener = feed_.onNotification([this](const ParsedNotification &notification) {
        const auto watched = watchedApps(settings_);
        if (const auto app = matchingApp(notification.appID, watched))
            newestOfFeed_[*app] = notification;
        announce(AnnouncedMessages::Source::Live, notification, watched);
    });
}

void NotificationCenterMonitor::announce(AnnouncedMessages::Source source,
                                         const ParsedNotification &notification,
                                         const QList<WatchedNotificationApp> &watched)
{
    const auto app = matchingApp(notification.appID, watched);
    const Duration span = run_->interval + tolerance + deliverySlack;
    if (app &&
        !announced_.isKnown(source, comparableText(*app, notification), runLoop_.now(), span))
        tell(*app, notification);
}

void NotificationCenterMonitor::tell(WatchedNotificationApp app,
                                     const ParsedNotification &notification) const
{
    const Callback &callback =
        app == WatchedNotificationApp::Discord ? onNewDiscordNotification : onNewSlackNotification;
    if (callback)
        callback(notification.title, notification.subtitle, notification.body);
}

void NotificationCenterMonitor::test(WatchedNotificationApp app,
                                     std::function<void(const QString &text)> completion)
{
    runLoop_.background(
        owner_,
        [&database = database_, home = home_, app] {
            const auto found = storedNotifications(database, home, {app});
            return found.isEmpty() ? std::nullopt : std::optional(found.first());
        },
        [this, app,
         completion = std::move(completion)](const std::optional<ParsedNotification> &newest) {
            finishTest(app, newest, completion);
        });
}

void NotificationCenterMonitor::finishTest(
    WatchedNotificationApp app, std::optional<ParsedNotification> newest,
    const std::function<void(const QString &)> &completion) const
{
    if (const auto live = newestOfFeed_.find(app); !newest && live != newestOfFeed_.end())
        newest = live->second;
    if (!newest) {
        completion(Words::tr("No %1 notifications in database. Send yourself a DM or have someone "
                             "message you, then try again. If you see \"Access denied\", grant "
                             "Full Disk Access: System Settings → Privacy & Security → Full Disk "
                             "Access → Quillmere.")
                       .arg(displayName(app)));
        return;
    }
    tell(app, *newest);
    completion(Words::tr("Found %1 notification. Showing in island.").arg(displayName(app)));
}

} // namespace quillmere
