#pragma once

#include "monitors/LowBatteryRule.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>

namespace quillmere {

class SettingsStore;

/// Reports a charger that is plugged in or pulled out, and a charge that falls to the user's
/// threshold. What it finds when it starts is where it starts from, never a report; so it is to be
/// started when the power sources have become available. Main thread only.
class BatteryMonitor
{
public:
    BatteryMonitor(RunLoop &runLoop, PowerSources &powerSources, const SettingsStore &settings);

    /// Called from the main queue; not after stop().
    std::function<void(int level, bool isCharging, bool isPluggedIn)> onPowerSourceChange;
    std::function<void(int level)> onLowBattery;

    /// Does nothing while running.
    void start();
    void stop();

    bool isRunning() const { return run_.has_value(); }
    int lastLevel() const { return lastLevel_; } ///< percent, 0 before the first status
    std::optional<bool> lastIsPluggedIn() const { return lastIsPluggedIn_; }
    bool hasReportedLowBattery() const { return lowBattery_.hasReportedLowBattery(); }

private:
    /// What start() sets up; ending it removes the listener and drops reports still posted.
    struct Run {
        Task runLoopSource;
        Owner owner;
    };

    void powerSourcesChanged();
    void remember(const BatteryStatus &status);
    void reportPowerSource(const BatteryStatus &status);
    void checkLowBattery(const BatteryStatus &status, int previousLevel);

    RunLoop &runLoop_;
    PowerSources &powerSources_;
    const SettingsStore &settings_;
    int lastLevel_ = 0;
    std::optional<bool> lastIsPluggedIn_;
    LowBatteryRule lowBattery_;
    std::optional<Run> run_;
};

} // namespace quillmere
