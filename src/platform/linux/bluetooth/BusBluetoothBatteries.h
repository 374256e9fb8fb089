#pragma once

#include "platform/BluetoothBatteries.h"
#include "platform/Listeners.h"
#include "platform/RunLoop.h"
#include "platform/linux/bluetooth/BlueZBatteries.h"
#include "platform/linux/bluetooth/UPowerBatteries.h"
#include "platform/linux/dbus/BusOwner.h"

#include <QDBusConnection>

#include <functional>
#include <optional>

namespace quillmere {

/// Batteries as BlueZ tells them, else as UPower does. Both may be absent, come late or restart;
/// neither is ever started from here. Main thread only.
class BusBluetoothBatteries : public BluetoothBatteries
{
public:
    using OpenBus = std::function<QDBusConnection()>;

    /// `openBus` is called on a background thread when somebody first listens, for connecting waits
    /// for the bus.
    explicit BusBluetoothBatteries(RunLoop &runLoop, OpenBus openBus = &QDBusConnection::systemBus);

    std::optional<int> percent(const QString &address) const override;
    QList<BluetoothBattery> batteries() const override;
    Task onChanged(std::function<void()> listener) override;

private:
    /// What is followed while somebody listens.
    struct Watch {
        Watch(const QDBusConnection &bus, const std::function<void()> &onChanged);

        std::optional<BlueZBatteries> blueZ;
        std::optional<UPowerBatteries> uPower;
        BusOwner blueZOwner;
        BusOwner uPowerOwner;
    };

    void openBus();
    void begin();
    void endIfUnused();

    RunLoop &runLoop_;
    OpenBus openBus_;
    bool isOpening_ = false;
    std::optional<QDBusConnection> bus_;
    std::optional<Watch> watch_;
    Listeners<> listeners_;
    Owner owner_;
};

} // namespace quillmere
