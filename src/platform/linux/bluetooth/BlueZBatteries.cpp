#include "platform/linux/bluetooth/BlueZBatteries.h"

#include "platform/BluetoothAddress.h"
#include "platform/linux/dbus/BusNames.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

constexpr Duration answerLimit = 5s;
constexpr QLatin1StringView managerInterface{"org.freedesktop.DBus.ObjectManager"};
constexpr QLatin1StringView batteryInterface{"org.bluez.Battery1"};

} // namespace

BlueZBatteries::BlueZBatteries(const QDBusConnection &bus, const QString &owner,
                               std::function<void()> onChanged)
    : onChanged_(std::move(onChanged))
    , owner_(owner)
    , calls_(bus)
{
    subscribe();
    readAll();
}

QList<BluetoothBattery> BlueZBatteries::batteries() const
{
    QList<BluetoothBattery> all;
    for (const auto &entry : batteries_)
        all.append(entry.second);
    return all;
}

void BlueZBatteries::subscribe()
{
    // By unique name, so that nobody else is believed and the library asks the bus nothing; and of
    // the properties only the battery's, for a search for devices changes others all the time.
    QDBusConnection bus = calls_.connection();
    const QString root = QStringLiteral("/");
    bus.connect(owner_, root, managerInterface, QStringLiteral("InterfacesAdded"), this,
                SLOT(interfacesAdded(QDBusMessage)));
    bus.connect(owner_, root, managerInterface, QStringLiteral("InterfacesRemoved"), this,
                SLOT(interfacesRemoved(QDBusMessage)));
    bus.connect(owner_, {}, bus::propertiesInterface, QStringLiteral("PropertiesChanged"),
                QStringList(QString(batteryInterface)), {}, this,
                SLOT(propertiesChanged(QDBusMessage)));
}

void BlueZBatteries::readAll()
{
    const auto question = QDBusMessage::createMethodCall(
        owner_, QStringLiteral("/"), managerInterface, QStringLiteral("GetManagedObjects"));
    calls_.call(question, answerLimit, [this](const BusReply &reply) {
        if (!reply) {
            qWarning("[Bluetooth] BlueZ does not tell its devices: %s",
                     qUtf8Printable(reply.error().message()));
            return;
        }
        const auto objects = unpack<Objects>(reply->value(0), QLatin1StringView("a{oa{sa{sv}}}"));
        for (auto object = objects.begin(); object != objects.end(); ++object)
            take(object.key().path(), object->value(batteryInterface));
    });
}

void BlueZBatteries::take(const QString &path, const QVariantMap &battery)
{
    const QVariant value = battery.value(QStringLiteral("Percentage"));
    const QString address = bluetoothAddressIn(path); // objects are named by their address
    if (!value.isValid() || address.isEmpty())
        return;
    bool isNumber = false;
    const int percent = value.toInt(&isNumber);
    if (!isNumber || percent < 0 || percent > 100) {
        qWarning("[Bluetooth] A battery of %d percent is ignored", percent);
        return;
    }
    const auto [entry, isNew] =
        batteries_.try_emplace(address, BluetoothBattery{.address = address});
    if (isNew)
        readName(path, address);
    if (std::exchange(entry->second.percent, percent) != percent || isNew)
        onChanged_();
}

void BlueZBatteries::readName(const QString &path, const QString &address)
{
    auto question = QDBusMessage::createMethodCall(owner_, path, bus::propertiesInterface,
                                                   QStringLiteral("Get"));
    question << QStringLiteral("org.bluez.Device1") << QStringLiteral("Alias");
    calls_.call(question, answerLimit, [this, address](const BusReply &reply) {
        const auto found = batteries_.find(address);
        if (reply && found != batteries_.end()) // else the device is gone again
            found->second.name = reply->value(0).value<QDBusVariant>().variant().toString();
    });
}

void BlueZBatteries::interfacesAdded(const QDBusMessage &message)
{
    const auto path = message.arguments().value(0).value<QDBusObjectPath>().path();
    const auto interfaces =
        unpack<Interfaces>(message.arguments().value(1), QLatin1StringView("a{sa{sv}}"));
    take(path, interfaces.value(batteryInterface));
}

void BlueZBatteries::interfacesRemoved(const QDBusMessage &message)
{
    const auto path = message.arguments().value(0).value<QDBusObjectPath>().path();
    if (message.arguments().value(1).toStringList().contains(batteryInterface) &&
        batteries_.erase(bluetoothAddressIn(path)) > 0)
        onChanged_();
}

void BlueZBatteries::propertiesChanged(const QDBusMessage &message)
{
    take(message.path(),
         unpack<QVariantMap>(message.arguments().value(1), QLatin1StringView("a{sv}")));
}

} // namespace quillmere
