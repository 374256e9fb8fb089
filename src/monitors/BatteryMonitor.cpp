#include "monitors/BatteryMonitor.h"

#include "settings/SettingsStore.h"

namespace quillmere {

BatteryMonitor::BatteryMonitor(RunLoop &runLoop, PowerSources &powerSources,
                               const SettingsStore &settings)
    : runLoop_(runLoop)
    , powerSources_(powerSources)
    , settings_(settings)
{
}

void BatteryMonitor::start()
{
    if (isRunning())
        return;
    run_.emplace();
    run_->runLoopSource = powerSources_.onChanged([this] { powerSourcesChanged(); });
    if (const auto status = powerSources_.status())
        remember(*status);
}

void BatteryMonitor::stop()
{
    run_.reset();
}

void BatteryMonitor::remember(const BatteryStatus &status)
{
    lastLevel_ = status.level;
    lastIsPluggedIn_ = status.isPluggedIn;
}

void BatteryMonitor::powerSourcesChanged()
{
    const auto status = powerSources_.status();
    if (!status)
        return;
    const int previousLevel = lastLevel_;
    const auto wasPluggedIn = lastIsPluggedIn_;
    remember(*status);
    if (wasPluggedIn && *wasPluggedIn != status->isPluggedIn)
        reportPowerSource(*status);
    if (status->level != previousLevel)
        runLoop_.post(run_->owner, [this, status = *status, previousLevel] {
            checkLowBattery(status, previousLevel);
        });
}

void BatteryMonitor::reportPowerSource(const BatteryStatus &status)
{
    runLoop_.post(run_->owner, [this, status] {
        if (onPowerSourceChange)
            onPowerSourceChange(status.level, status.isCharging, status.isPluggedIn);
    });
    if (status.isPluggedIn)
        lowBattery_.rearm();
}

void BatteryMonitor::checkLowBattery(const BatteryStatus &status, int previousLevel)
{
    const int threshold = wholePercent(settings_.lowBatteryThreshold.get());
    if (lowBattery_.warns(status.level, previousLevel, threshold, status.isPluggedIn) &&
        onLowBattery)
        onLowBattery(status.level);
}

} // namespace quillmere
