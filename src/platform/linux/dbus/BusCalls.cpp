#include "platform/linux/dbus/BusCalls.h"

#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <limits>

namespace quillmere {

namespace {

int milliseconds(Duration timeout)
{
    const auto count = std::chrono::ceil<std::chrono::milliseconds>(timeout).count();
    return static_cast<int>(std::clamp<decltype(count)>(count, 1, std::numeric_limits<int>::max()));
}

BusReply toReply(const QDBusMessage &message)
{
    if (message.type() == QDBusMessage::ErrorMessage)
        return tl::unexpected(QDBusError(message));
    return message.arguments();
}

} // namespace

BusCalls::BusCalls(QDBusConnection connection)
    : connection_(std::move(connection))
{
}

void BusCalls::call(const QDBusMessage &message, Duration timeout,
                    std::function<void(const BusReply &)> done)
{
    // A call without a connection would never be finished.
    const auto pending = connection_.isConnected()
                             ? connection_.asyncCall(message, milliseconds(timeout))
                             : QDBusPendingCall::fromError(QDBusError(
                                   QDBusError::Disconnected, QStringLiteral("no connection")));
    auto *watcher = new QDBusPendingCallWatcher(pending, &pending_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &pending_,
                     [watcher, done = std::move(done)]() mutable {
                         watcher->deleteLater();
                         // The callback may destroy this object, and the lambda with it.
                         const auto answer = std::move(done);
                         answer(toReply(watcher->reply()));
                     });
}

} // namespace quillmere
