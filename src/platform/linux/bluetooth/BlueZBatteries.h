#pragma once

#include "platform/BluetoothBatteries.h"
#include "platform/linux/dbus/BusCalls.h"

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <map>
#include <optional>

namespace quillmere {

/// The batteries that one run of BlueZ knows, by device address. Main thread only.
class BlueZBatteries : public QObject
{
    Q_OBJECT

public:
    /// `owner` is BlueZ's unique name.
    BlueZBatteries(const QDBusConnection &bus, const QString &owner,
                   std::function<void()> onChanged);

    QList<BluetoothBattery> batteries() const;

private:
    void subscribe();
    void readAll();
    void readName(const QString &path, const QString &address);
    void take(const QString &path, const QVariantMap &battery);

    Q_SLOT void interfacesAdded(const QDBusMessage &message);
    Q_SLOT void interfacesRemoved(const QDBusMessage &message);
    Q_SLOT void propertiesChanged(const QDBusMessage &message);

    std::function<void()> onChanged_;
    const QString owner_;
    std::map<QString, BluetoothBattery> batteries_; // by address
    BusCalls calls_;
};

} // namespace quillmere
