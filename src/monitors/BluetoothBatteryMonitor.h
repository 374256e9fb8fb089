#pragma once

#include "monitors/LowBatteryRule.h"
#include "platform/BluetoothBatteries.h"
#include "platform/RunLoop.h"

#include <functional>
#include <map>
#include <optional>

namespace quillmere {

class SettingsStore;

/// Reports a Bluetooth device whose charge falls to the user's threshold, by the rule that holds
/// for the machine's own battery. The charge a device is first seen with is never a report; a
/// device that goes and comes back is compared with what it had. Main thread only.
class BluetoothBatteryMonitor
{
public:
    BluetoothBatteryMonitor(RunLoop &runLoop, BluetoothBatteries &batteries,
                            const SettingsStore &settings);

    /// Called from the main queue; not after stop(). The name is empty when nobody tells it.
    std::function<void(const QString &name, int level)> onLowBattery;

    /// Does nothing while running.
    void start();
    void stop();

    bool isRunning() const { return run_.has_value(); }

private:
    struct Device {
        int lastLevel = 0;
        LowBatteryRule rule;
    };
    /// What start() sets up; ending it removes the listener and drops reports still posted.
    struct Run {
        Task listener;
        std::map<QString, Device> devices; // by address
        Owner owner;
    };

    void batteriesChanged();
    void check(const BluetoothBattery &battery, int threshold);

    RunLoop &runLoop_;
    BluetoothBatteries &batteries_;
    const SettingsStore &settings_;
    std::optional<Run> run_;
};

} // namespace quillmere
