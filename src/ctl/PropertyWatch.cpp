#include "ctl/PropertyWatch.h"

#include "ctl/BusJson.h"
#include "ctl/IslandClient.h"
#include "platform/linux/dbus/BusNames.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;

} // namespace

PropertyWatch::PropertyWatch(const QDBusConnection &bus, QString property)
    : calls_(bus)
    , property_(std::move(property))
    , watcher_(bus::serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { setOwner(owner); });
}

void PropertyWatch::start()
{
    // Without a sender, since the library waits for the bus to learn who has a name. Anyone can
    // send such a signal, so it is checked when it comes.
    QDBusConnection bus = calls_.connection();
    bus.connect({}, bus::objectPath, bus::propertiesInterface, QStringLiteral("PropertiesChanged"),
                this, SLOT(propertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
    bus.connect({}, bus::localPath, bus::localInterface, QStringLiteral("Disconnected"), this,
                SLOT(disconnected()));

    auto whoHasTheName = QDBusMessage::createMethodCall(
        bus::daemonName, bus::daemonPath, bus::daemonName, QStringLiteral("GetNameOwner"));
    whoHasTheName << QString(bus::serviceName);
    calls_.call(whoHasTheName, answerLimit, [this](const BusReply &reply) {
        if (reply)
            setOwner(reply->value(0).toString());
    });
}

void PropertyWatch::setOwner(const QString &owner)
{
    if (owner == owner_)
        return;
    owner_ = owner;
    told_.clear();
    if (!owner_.isEmpty())
        readAll();
}

void PropertyWatch::readAll()
{
    calls_.call(getAllMessage(), answerLimit, [this](const BusReply &reply) {
        if (reply)
            return tell(toProperties(*reply));
        const QDBusError &error = reply.error();
        const bool isGone = isNotRunning(error) || error.type() == QDBusError::NoReply;
        if (!isGone && onFailure)
            onFailure(describe(error));
    });
}

void PropertyWatch::tell(const QVariantMap &values)
{
    for (auto each = values.begin(); each != values.end(); ++each) {
        if (!property_.isEmpty() && each.key() != property_)
            continue;
        // A change may overtake the answer to the first question: tell nothing twice.
        const QByteArray text = toJsonLine(each.value());
        if (auto &told = told_[each.key()]; told != text) {
            told = text;
            onValue(each.key(), each.value());
        }
    }
}

void PropertyWatch::propertiesChanged(const QString &interface, const QVariantMap &changed,
                                      const QStringList & /*invalidated*/,
                                      const QDBusMessage &message)
{
    if (interface == bus::islandInterface && message.service() == owner_)
        tell(changed);
}

void PropertyWatch::disconnected()
{
    if (onFailure)
        onFailure(QCoreApplication::translate("quillmerectl", "the session bus is gone"));
}

} // namespace quillmere
