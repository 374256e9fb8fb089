#pragma once

#include "island/HUDContent.h"
#include "monitors/BatteryMonitor.h"
#include "monitors/BluetoothBatteryMonitor.h"

#include <functional>

namespace quillmere {

class HUDManager;
struct Platform;
class SettingsStore;
class SystemSound;
class UserNotifications;

/// "On Battery" without the charger; with it "Charging", or "Plugged In" when the battery is full
/// or held. Level in percent.
HUDContent chargerHUD(int level, bool isCharging, bool isPluggedIn);

/// Tells of the charger, of a battery that runs low, be it this machine's or a Bluetooth device's,
/// and of low power mode, each as far as the settings want it. Main thread only.
class PowerAlerts
{
public:
    /// What `isSuppressed` says of a type of HUD holds for the HUDs alone; sounds and notifications
    /// still come.
    PowerAlerts(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                std::function<bool(HUDContent::HUDType type)> isSuppressed);

    void start();
    void stop();

private:
    void followDevices();
    void chargerChanged(int level, bool isCharging, bool isPluggedIn);
    void batteryIsLow(int level);
    void deviceIsLow(const QString &name, int level);
    void lowPowerModeChanged(bool isOn);

    Platform &platform_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::function<bool(HUDContent::HUDType)> isSuppressed_;
    BatteryMonitor batteryMonitor_;
    BluetoothBatteryMonitor deviceMonitor_;
    Task availability_;
    Task lowPowerMode_;
    Task deviceSetting_;
    QObject context_;
};

} // namespace quillmere
