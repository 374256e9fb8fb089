#include "platform/linux/notifications/BusNotificationFeed.h"

#include "platform/linux/notifications/MessageSender.h"

#include <QDebug>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr auto monitorRules = {
    "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
    "type='method_call',interface='org.gtk.Notifications',member='AddNotification'"};

constexpr std::size_t mostTold = 32;
constexpr Duration relayDelay = 1s; // within which a service passes a call on to another
constexpr auto epoch = std::chrono::sys_days(std::chrono::January / 1 / 2001);

} // namespace

QString sessionBusAddress()
{
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (!address.isEmpty() || !QFileInfo::exists(socket))
        return address;
    return QStringLiteral("unix:path=") + socket;
}

BusNotificationFeed::BusNotificationFeed(RunLoop &runLoop, QString address)
    : runLoop_(runLoop)
    , address_(std::move(address))
{
}

Task BusNotificationFeed::onNotification(Listener listener)
{
    auto task = std::make_shared<Task>(listeners_.add(std::move(listener)));
    if (!watch_) {
        watch_.emplace();
        connect();
    }
    return Task([this, task, owner = owner_.reference()] {
        task->cancel();
        if (!owner.expired() && listeners_.isEmpty())
            watch_.reset();
    });
}

void BusNotificationFeed::connect()
{
    if (address_.isEmpty())
        return;
    runLoop_.background(
        watch_->owner, [address = address_] { return becomeMonitor(address, monitorRules); },
        [this](tl::expected<OwnedBusConnection, QString> connection) {
            connected(std::move(connection));
        });
}

void BusNotificationFeed::connected(tl::expected<OwnedBusConnection, QString> connection)
{
    const QString complaint = connection ? QString() : connection.error();
    if (std::exchange(complaint_, complaint) != complaint && !complaint.isEmpty())
        qWarning("[Notifications] The bus does not show its notifications: %s",
                 qUtf8Printable(complaint));
    if (!connection)
        return retryLater();
    retryDelay_ = firstRetry;
    watch_->connection.emplace(
        *std::move(connection), [this](DBusMessage *message) { take(message); },
        [this] { retryLater(); });
}

void BusNotificationFeed::retryLater()
{
    watch_->retry = runLoop_.after(retryDelay_, [this] {
        watch_->connection.reset();
        connect();
    });
    retryDelay_ = std::min(2 * retryDelay_, longestRetry);
}

void BusNotificationFeed::take(DBusMessage *message)
{
    const auto call = readNotificationCall(message);
    auto notification = call ? chatMessage(*call) : std::nullopt;
    if (!notification || isRepetition(*call, *notification))
        return;
    notification->uuid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    notification->deliveredDate =
        std::chrono::duration<double>(runLoop_.wallClock() - epoch).count();
    listeners_.notify(*notification);
}

/// Some services pass each call on to another one, under the same interface; and some programs ask
/// for the same again, in place of what is shown.
bool BusNotificationFeed::isRepetition(const NotificationCall &call,
                                       const ParsedNotification &notification)
{
    const Instant now = runLoop_.now();
    while (!told_.empty() && (told_.size() >= mostTold || now - told_.front().time > relayDelay))
        told_.pop_front();
    const bool isRepeated = std::ranges::any_of(told_, [&](const Told &told) {
        return told.notification == notification && (call.replaces || told.sender != call.sender);
    });
    if (!isRepeated)
        told_.push_back({call.sender, notification, now});
    return isRepeated;
}

} // namespace quillmere
