#pragma once

#include "platform/Listeners.h"
#include "platform/LowPowerMode.h"
#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/dbus/BusProperties.h"

#include <QDBusConnection>

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace quillmere {

/// The power-saver profile of power-profiles-daemon, or of what stands in for it, under the name it
/// has now or had before. It is never started from here. Main thread only.
class PowerProfiles : public LowPowerMode
{
public:
    using OpenBus = std::function<QDBusConnection()>;

    /// `openBus` is called on a background thread, for connecting waits for the bus.
    explicit PowerProfiles(RunLoop &runLoop, OpenBus openBus = &QDBusConnection::systemBus);

    std::optional<bool> isOn() const override { return isOn_; }
    Task onChanged(std::function<void(bool isOn)> listener) override;

private:
    struct Service {
        std::unique_ptr<BusProperties> properties; ///< of the run there is now
        std::optional<BusOwner> owner;
    };

    void follow(const QDBusConnection &bus, const QString &name, const QString &path);
    void take(const QVariantMap &properties);

    RunLoop &runLoop_;
    std::optional<bool> isOn_;
    Listeners<bool> listeners_;
    std::list<Service> services_;
    Owner owner_;
};

} // namespace quillmere
