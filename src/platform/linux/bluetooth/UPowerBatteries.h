#pragma once

#include "platform/BluetoothBatteries.h"
#include "platform/linux/dbus/BusCalls.h"

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <map>
#include <optional>

namespace quillmere {

/// The batteries of Bluetooth devices that one run of UPower knows, by device address. Some are
/// read by the kernel and unknown to BlueZ. Main thread only.
class UPowerBatteries : public QObject
{
    Q_OBJECT

public:
    /// `owner` is UPower's unique name.
    UPowerBatteries(const QDBusConnection &bus, const QString &owner,
                    std::function<void()> onChanged);

    QList<BluetoothBattery> batteries() const;

private:
    void subscribe();
    void readAll();
    void read(const QString &path);
    void take(const QString &path, const QVariantMap &properties);
    void forget(const QString &path);

    Q_SLOT void deviceAdded(const QDBusMessage &message);
    Q_SLOT void deviceRemoved(const QDBusMessage &message);
    Q_SLOT void propertiesChanged(const QDBusMessage &message);

    std::function<void()> onChanged_;
    const QString owner_;
    std::map<QString, BluetoothBattery> batteries_; // by object path
    BusCalls calls_;
};

} // namespace quillmere
