#include "monitors/BluetoothBatteryMonitor.h"

#include "settings/SettingsStore.h"

#include <utility>

namespace quillmere {

BluetoothBatteryMonitor::BluetoothBatteryMonitor(RunLoop &runLoop, BluetoothBatteries &batteries,
                                                 const SettingsStore &settings)
    : runLoop_(runLoop)
    , batteries_(batteries)
    , settings_(settings)
{
}

void BluetoothBatteryMonitor::start()
{
    if (isRunning())
        return;
    run_.emplace();
    run_->listener = batteries_.onChanged([this] { batteriesChanged(); });
    batteriesChanged();
}

void BluetoothBatteryMonitor::stop()
{
    run_.reset();
}

void BluetoothBatteryMonitor::batteriesChanged()
{
    const int threshold = wholePercent(settings_.lowBluetoothBatteryThreshold.get());
    for (const BluetoothBattery &battery : batteries_.batteries())
        check(battery, threshold);
}

void BluetoothBatteryMonitor::check(const BluetoothBattery &battery, int threshold)
{
    const auto [entry, isNew] = run_->devices.try_emplace(battery.address);
    const int former = std::exchange(entry->second.lastLevel, battery.percent);
    if (isNew || former == battery.percent ||
        !entry->second.rule.warns(battery.percent, former, threshold, false))
        return;
    runLoop_.post(run_->owner, [this, battery] {
        if (onLowBattery)
            onLowBattery(battery.name, battery.percent);
    });
}

} // namespace quillmere
