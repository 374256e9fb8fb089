#include "platform/linux/dbus/BusOwner.h"

#include "platform/linux/dbus/BusNames.h"

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;

} // namespace

BusOwner::BusOwner(const QDBusConnection &connection, const QString &name,
                   std::function<void(const QString &owner)> onChanged)
    : onChanged_(std::move(onChanged))
    , calls_(connection)
    , watcher_(name, connection, QDBusServiceWatcher::WatchForOwnerChange)
{
    QObject::connect(
        &watcher_, &QDBusServiceWatcher::serviceOwnerChanged, &watcher_,
        [this](const QString &, const QString &, const QString &owner) { set(owner); });
    auto question = QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath,
                                                   bus::daemonName, QStringLiteral("GetNameOwner"));
    question << name;
    calls_.call(question, answerLimit, [this](const BusReply &reply) {
        if (!isKnown_) // else it has changed since it was asked
            set(reply ? reply->value(0).toString() : QString());
    });
}

void BusOwner::set(const QString &owner)
{
    if (std::exchange(isKnown_, true) && owner == owner_)
        return;
    owner_ = owner;
    onChanged_(owner_);
}

} // namespace quillmere
