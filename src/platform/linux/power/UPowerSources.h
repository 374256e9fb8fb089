#pragma once

#include "platform/Listeners.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/dbus/BusProperties.h"
#include "platform/linux/power/SettlingStatus.h"
#include "platform/linux/power/UPowerReading.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <optional>

namespace quillmere {

/// Batteries and charger as UPower tells them. It may be absent, come late or restart, and is never
/// started from here. Main thread only.
class UPowerSources : public PowerSources
{
public:
    using OpenBus = std::function<QDBusConnection()>;

    /// `openBus` is called on a background thread, for connecting waits for the bus.
    explicit UPowerSources(RunLoop &runLoop, OpenBus openBus = &QDBusConnection::systemBus);

    std::optional<BatteryStatus> status() const override { return status_.settled(); }
    Task onChanged(std::function<void()> listener) override;
    bool isAvailable() const override { return isAvailable_; }
    Task onAvailabilityChanged(std::function<void(bool available)> listener) override;

private:
    /// One run of UPower.
    struct Service {
        Service(const QDBusConnection &bus, const QString &owner,
                const std::function<void()> &onTold);

        UPowerReading reading;
        bool hasToldDaemon = false;
        bool hasToldDisplayDevice = false;
        BusProperties daemon;
        BusProperties displayDevice;
    };

    void follow(const QDBusConnection &bus);
    void serviceChanged(const QDBusConnection &bus, const QString &owner);
    void serviceTold();
    void setAvailable(bool available);

    RunLoop &runLoop_;
    bool isAvailable_ = false;
    SettlingStatus status_;
    Listeners<> listeners_;
    Listeners<bool> availabilityListeners_;
    std::unique_ptr<Service> service_;
    std::optional<BusOwner> uPower_;
    Owner owner_;
};

} // namespace quillmere
