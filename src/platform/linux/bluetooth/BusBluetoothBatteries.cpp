#include "platform/linux/bluetooth/BusBluetoothBatteries.h"

#include <QDebug>

#include <algorithm>
#include <memory>
#include <utility>

namespace quillmere {

namespace {

/// Follows one run of a service after the other: what was known from the former is gone with it.
template <class Batteries>
auto follow(std::optional<Batteries> &batteries, const QDBusConnection &bus,
            const std::function<void()> &onChanged)
{
    return [&batteries, bus, onChanged](const QString &owner) {
        const bool hadOne = batteries.has_value();
        batteries.reset();
        if (!owner.isEmpty())
            batteries.emplace(bus, owner, onChanged);
        if (hadOne)
            onChanged();
    };
}

} // namespace

BusBluetoothBatteries::Watch::Watch(const QDBusConnection &bus,
                                    const std::function<void()> &onChanged)
    : blueZOwner(bus, QStringLiteral("org.bluez"), follow(blueZ, bus, onChanged))
    , uPowerOwner(bus, QStringLiteral("org.freedesktop.UPower"), follow(uPower, bus, onChanged))
{
}

BusBluetoothBatteries::BusBluetoothBatteries(RunLoop &runLoop, OpenBus openBus)
    : runLoop_(runLoop)
    , openBus_(std::move(openBus))
{
}

std::optional<int> BusBluetoothBatteries::percent(const QString &address) const
{
    const auto all = batteries();
    const auto found = std::ranges::find(all, address, &BluetoothBattery::address);
    return found == all.end() ? std::nullopt : std::optional(found->percent);
}

QList<BluetoothBattery> BusBluetoothBatteries::batteries() const
{
    QList<BluetoothBattery> all;
    if (watch_ && watch_->blueZ)
        all = watch_->blueZ->batteries();
    if (!watch_ || !watch_->uPower)
        return all;
    for (const BluetoothBattery &battery : watch_->uPower->batteries()) {
        if (std::ranges::find(all, battery.address, &BluetoothBattery::address) == all.end())
            all.append(battery);
    }
    return all;
}

Task BusBluetoothBatteries::onChanged(std::function<void()> listener)
{
    auto registered = std::make_shared<Task>(listeners_.add(std::move(listener)));
    begin();
    // What is followed ends later, for this may come from within one of its callbacks.
    return Task([this, registered, life = owner_.reference()] {
        registered->cancel();
        if (!life.expired())
            runLoop_.post(owner_, [this] { endIfUnused(); });
    });
}

void BusBluetoothBatteries::openBus()
{
    if (std::exchange(isOpening_, true))
        return;
    runLoop_.background(owner_, openBus_, [this](const QDBusConnection &bus) {
        isOpening_ = false;
        if (!bus.isConnected()) {
            qInfo("[Bluetooth] No system bus: batteries of devices stay unknown");
            return;
        }
        bus_ = bus;
        begin();
    });
}

void BusBluetoothBatteries::begin()
{
    if (watch_ || listeners_.isEmpty())
        return;
    if (!bus_)
        return openBus();
    watch_.emplace(*bus_, [this] { listeners_.notify(); });
}

void BusBluetoothBatteries::endIfUnused()
{
    if (listeners_.isEmpty())
        watch_.reset();
}

} // namespace quillmere
