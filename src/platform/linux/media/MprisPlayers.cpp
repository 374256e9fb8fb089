#include "platform/linux/media/MprisPlayers.h"

#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/media/MprisNames.h"

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr Duration shortestRetry = 1s;
constexpr Duration longestRetry = 1min;

/// Nobody runs that many; a program that floods the bus with names does not cost more.
constexpr qsizetype mostPlayers = 32;

QDBusMessage question(const QString &method)
{
    return QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath, bus::daemonName,
                                          method);
}

QString beginning()
{
    return mpris::busNamespace + QStringLiteral(".");
}

} // namespace

MprisPlayers::MprisPlayers(RunLoop &runLoop, const QDBusConnection &bus,
                           std::function<void(const QString &, const QString &)> onChanged)
    : runLoop_(runLoop)
    , onChanged_(std::move(onChanged))
    , calls_(bus)
    , watcher_(mpris::busNamespace + QStringLiteral("*"), bus,
               QDBusServiceWatcher::WatchForOwnerChange)
    , retryDelay_(shortestRetry)
{
    QObject::connect(
        &watcher_, &QDBusServiceWatcher::serviceOwnerChanged, &watcher_,
        [this](const QString &name, const QString &, const QString &owner) { set(name, owner); });
    ask();
}

void MprisPlayers::ask()
{
    calls_.call(question(QStringLiteral("ListNames")), answerLimit, [this](const BusReply &reply) {
        if (!reply)
            return failed(reply.error());
        for (const QString &name : reply->value(0).toStringList()) {
            if (name.startsWith(beginning()) && !owners_.contains(name))
                askOwner(name);
        }
    });
}

void MprisPlayers::askOwner(const QString &name)
{
    auto ask = question(QStringLiteral("GetNameOwner"));
    ask << name;
    calls_.call(ask, answerLimit, [this, name](const BusReply &reply) {
        if (!reply)
            return failed(reply.error());
        if (!owners_.contains(name))
            set(name, reply->value(0).toString());
    });
}

/// The bus tells of changes only: without asking again, who is there already stays unknown.
void MprisPlayers::failed(const QDBusError &error)
{
    if (error.name() == bus::nameHasNoOwner || error.type() == QDBusError::Disconnected || retry_)
        return;
    if (retryDelay_ == shortestRetry)
        qWarning("[MPRIS] The bus does not tell its names: %s", qUtf8Printable(error.message()));
    retry_ = runLoop_.after(retryDelay_, [this] {
        retry_.cancel();
        ask();
    });
    retryDelay_ = std::min(2 * retryDelay_, longestRetry);
}

void MprisPlayers::set(const QString &name, const QString &owner)
{
    if (!name.startsWith(beginning()) || owners_.value(name) == owner)
        return;
    if (owner.isEmpty())
        owners_.remove(name);
    else if (owners_.size() < mostPlayers || owners_.contains(name))
        owners_.insert(name, owner);
    else
        return;
    onChanged_(name.mid(beginning().size()), owner);
}

} // namespace quillmere
