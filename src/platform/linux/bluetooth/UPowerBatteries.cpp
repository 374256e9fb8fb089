#include "platform/linux/bluetooth/UPowerBatteries.h"

#include "platform/BluetoothAddress.h"
#include "platform/linux/dbus/BusNames.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

#include <cmath>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr QLatin1StringView rootPath{"/org/freedesktop/UPower"};
constexpr QLatin1StringView rootInterface{"org.freedesktop.UPower"};
constexpr QLatin1StringView deviceInterface{"org.freedesktop.UPower.Device"};

QString pathIn(const QDBusMessage &message)
{
    return message.arguments().value(0).value<QDBusObjectPath>().path();
}

/// Devices of BlueZ are named by its object path, those of the kernel carry the address as serial
/// number. Other peripherals and this machine's own batteries have no address.
QString addressOf(const QVariantMap &properties)
{
    const QString address =
        bluetoothAddressIn(properties.value(QStringLiteral("NativePath")).toString());
    return address.isEmpty()
               ? bluetoothAddressIn(properties.value(QStringLiteral("Serial")).toString())
               : address;
}

} // namespace

UPowerBatteries::UPowerBatteries(const QDBusConnection &bus, const QString &owner,
                                 std::function<void()> onChanged)
    : onChanged_(std::move(onChanged))
    , owner_(owner)
    , calls_(bus)
{
    subscribe();
    readAll();
}

QList<BluetoothBattery> UPowerBatteries::batteries() const
{
    QList<BluetoothBattery> all;
    for (const auto &entry : batteries_)
        all.append(entry.second);
    return all;
}

void UPowerBatteries::subscribe()
{
    QDBusConnection bus = calls_.connection();
    bus.connect(owner_, rootPath, rootInterface, QStringLiteral("DeviceAdded"), this,
                SLOT(deviceAdded(QDBusMessage)));
    bus.connect(owner_, rootPath, rootInterface, QStringLiteral("DeviceRemoved"), this,
                SLOT(deviceRemoved(QDBusMessage)));
    bus.connect(owner_, {}, bus::propertiesInterface, QStringLiteral("PropertiesChanged"),
                QStringList(QString(deviceInterface)), {}, this,
                SLOT(propertiesChanged(QDBusMessage)));
}

void UPowerBatteries::readAll()
{
    const auto question = QDBusMessage::createMethodCall(owner_, rootPath, rootInterface,
                                                         QStringLiteral("EnumerateDevices"));
    calls_.call(question, answerLimit, [this](const BusReply &reply) {
        if (!reply) {
            qWarning("[Bluetooth] UPower does not tell its devices: %s",
                     qUtf8Printable(reply.error().message()));
            return;
        }
        const auto paths = unpack<QList<QDBusObjectPath>>(reply->value(0), QLatin1StringView("ao"));
        for (const QDBusObjectPath &path : paths)
            read(path.path());
    });
}

void UPowerBatteries::read(const QString &path)
{
    auto question = QDBusMessage::createMethodCall(owner_, path, bus::propertiesInterface,
                                                   QStringLiteral("GetAll"));
    question << QString(deviceInterface);
    calls_.call(question, answerLimit, [this, path](const BusReply &reply) {
        if (reply) // else the device is gone again
            take(path, unpack<QVariantMap>(reply->value(0), QLatin1StringView("a{sv}")));
    });
}

void UPowerBatteries::take(const QString &path, const QVariantMap &properties)
{
    const QString address = addressOf(properties);
    const double percentage = properties.value(QStringLiteral("Percentage")).toDouble();
    const bool isPresent = properties.value(QStringLiteral("IsPresent")).toBool();
    if (address.isEmpty() || !isPresent || !(percentage >= 0 && percentage <= 100))
        return forget(path);
    const BluetoothBattery battery{.address = address,
                                   .name = properties.value(QStringLiteral("Model")).toString(),
                                   .percent = static_cast<int>(std::lround(percentage))};
    const auto [entry, isNew] = batteries_.try_emplace(path, battery);
    if (std::exchange(entry->second, battery) != battery || isNew)
        onChanged_();
}

void UPowerBatteries::forget(const QString &path)
{
    if (batteries_.erase(path) > 0)
        onChanged_();
}

void UPowerBatteries::deviceAdded(const QDBusMessage &message)
{
    read(pathIn(message));
}

void UPowerBatteries::deviceRemoved(const QDBusMessage &message)
{
    forget(pathIn(message));
}

void UPowerBatteries::propertiesChanged(const QDBusMessage &message)
{
    // Only of a device of ours: the machine's own battery changes every few seconds.
    if (batteries_.contains(message.path()))
        read(message.path());
}

} // namespace quillmere
