#pragma once

#include "island/HUDContent.h"
#include "platform/Task.h"

#include <QObject>
#include <QString>

namespace quillmere {

class AudioHardware;
class BluetoothBatteries;
class HUDManager;
class SettingsStore;

/// Announces a Bluetooth device that sound goes to now. Its charge is often known only seconds
/// later; then it joins the HUD while that is on screen. Main thread only.
class DeviceHUD
{
public:
    DeviceHUD(SettingsStore &settings, HUDManager &hudManager, const AudioHardware &audioHardware,
              BluetoothBatteries &batteries);

    void show(const QString &name, bool isAirPods);

private:
    bool isShown() const;
    void updateCharge(const QString &address, HUDContent shown);

    SettingsStore &settings_;
    HUDManager &hudManager_;
    const AudioHardware &audioHardware_;
    BluetoothBatteries &batteries_;
    QString shownName_;
    Task chargeListener_; ///< while a device is announced
    QObject context_;
};

} // namespace quillmere
