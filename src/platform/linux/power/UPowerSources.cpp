#include "platform/linux/power/UPowerSources.h"

#include <QDebug>

namespace quillmere {

namespace {

BusProperties::Place daemonOf(const QString &owner)
{
    return {.owner = owner,
            .path = QStringLiteral("/org/freedesktop/UPower"),
            .interface = QStringLiteral("org.freedesktop.UPower")};
}

BusProperties::Place displayDeviceOf(const QString &owner)
{
    return {.owner = owner,
            .path = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice"),
            .interface = QStringLiteral("org.freedesktop.UPower.Device")};
}

} // namespace

UPowerSources::Service::Service(const QDBusConnection &bus, const QString &owner,
                                const std::function<void()> &onTold)
    : daemon(bus, daemonOf(owner),
             [this, onTold](const QVariantMap &properties) {
                 reading.takeDaemon(properties);
                 hasToldDaemon = true;
                 onTold();
             })
    , displayDevice(bus, displayDeviceOf(owner), [this, onTold](const QVariantMap &properties) {
        reading.takeDisplayDevice(properties);
        hasToldDisplayDevice = true;
        onTold();
    })
{
}

UPowerSources::UPowerSources(RunLoop &runLoop, OpenBus openBus)
    : runLoop_(runLoop)
    , status_(runLoop, [this] { listeners_.notify(); })
{
    runLoop_.background(owner_, std::move(openBus),
                        [this](const QDBusConnection &bus) { follow(bus); });
}

Task UPowerSources::onChanged(std::function<void()> listener)
{
    return listeners_.add(std::move(listener));
}

Task UPowerSources::onAvailabilityChanged(std::function<void(bool)> listener)
{
    return availabilityListeners_.add(std::move(listener));
}

void UPowerSources::follow(const QDBusConnection &bus)
{
    if (!bus.isConnected()) {
        qInfo("[Battery] No system bus: the battery stays unknown");
        return;
    }
    uPower_.emplace(bus, QStringLiteral("org.freedesktop.UPower"),
                    [this, bus](const QString &owner) { serviceChanged(bus, owner); });
}

void UPowerSources::serviceChanged(const QDBusConnection &bus, const QString &owner)
{
    service_.reset();
    status_.begin(std::nullopt);
    setAvailable(false);
    if (!owner.isEmpty())
        service_ = std::make_unique<Service>(bus, owner, [this] { serviceTold(); });
}

void UPowerSources::serviceTold()
{
    if (!service_->hasToldDaemon || !service_->hasToldDisplayDevice)
        return;
    if (isAvailable_)
        return status_.set(service_->reading.status());
    status_.begin(service_->reading.status());
    setAvailable(true);
}

void UPowerSources::setAvailable(bool available)
{
    if (std::exchange(isAvailable_, available) != available)
        availabilityListeners_.notify(available);
}

} // namespace quillmere
