#include "app/PowerAlerts.h"

#include "app/SettingSubscription.h"
#include "island/HUDManager.h"
#include "monitors/BatterySymbol.h"
#include "platform/LowPowerMode.h"
#include "platform/Platform.h"
#include "platform/Symbols.h"
#include "platform/SystemSound.h"
#include "platform/UserNotifications.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QLocale>
#include <QUuid>

#include <algorithm>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PowerAlerts)
};

double fraction(int percent)
{
    return std::clamp(percent, 0, 100) / 100.0;
}

/// Of a notification that takes no other's place.
QString fresh(QLatin1StringView kind)
{
    return kind + u'-' + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString remainingText(int percent)
{
    //: What is left in a battery, such as "20% remaining"
    return Words::tr("%1% remaining").arg(QLocale().toString(percent));
}

} // namespace

HUDContent chargerHUD(int level, bool isCharging, bool isPluggedIn)
{
    const QString plugged = isCharging ? Words::tr("Charging") : Words::tr("Plugged In");
    return {.title = isPluggedIn ? plugged : Words::tr("On Battery"),
            .icon = QString(batterySymbol(level, isPluggedIn)),
            .level = fraction(level),
            .type = HUDContent::HUDType::Battery};
}

PowerAlerts::PowerAlerts(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                         std::function<bool(HUDContent::HUDType)> isSuppressed)
    : platform_(platform)
    , settings_(settings)
    , hudManager_(hudManager)
    , isSuppressed_(std::move(isSuppressed))
    , batteryMonitor_(platform.runLoop, platform.powerSources, settings)
    , deviceMonitor_(platform.runLoop, platform.bluetoothBatteries, settings)
{
    batteryMonitor_.onPowerSourceChange = [this](int level, bool isCharging, bool isPluggedIn) {
        chargerChanged(level, isCharging, isPluggedIn);
    };
    batteryMonitor_.onLowBattery = [this](int level) { batteryIsLow(level); };
    deviceMonitor_.onLowBattery = [this](const QString &name, int level) {
        deviceIsLow(name, level);
    };
}

void PowerAlerts::start()
{
    // The power service answers later and may restart; what it finds then is no event.
    availability_ = platform_.powerSources.onAvailabilityChanged([this](bool available) {
        if (available)
            batteryMonitor_.start();
        else
            batteryMonitor_.stop();
    });
    if (platform_.powerSources.isAvailable())
        batteryMonitor_.start();
    lowPowerMode_ =
        platform_.lowPowerMode.onChanged([this](bool isOn) { lowPowerModeChanged(isOn); });
    deviceSetting_ = subscribe(settings_, settings_.warnOnLowBluetoothBattery, &context_,
                               [this](bool) { followDevices(); });
    followDevices();
}

void PowerAlerts::stop()
{
    availability_.cancel();
    lowPowerMode_.cancel();
    deviceSetting_.cancel();
    batteryMonitor_.stop();
    deviceMonitor_.stop();
}

void PowerAlerts::followDevices()
{
    if (settings_.warnOnLowBluetoothBattery.get())
        deviceMonitor_.start();
    else
        deviceMonitor_.stop();
}

void PowerAlerts::chargerChanged(int level, bool isCharging, bool isPluggedIn)
{
    if (settings_.showBatteryHUD.get() && !isSuppressed_(HUDContent::HUDType::Battery))
        hudManager_.show(chargerHUD(level, isCharging, isPluggedIn), false,
                         settings_.batteryHUDDuration.get());
}

void PowerAlerts::batteryIsLow(int level)
{
    if (!settings_.warnOnLowBattery.get())
        return;
    if (settings_.showBatteryHUD.get() && !isSuppressed_(HUDContent::HUDType::Battery))
        hudManager_.showLowBattery(level, settings_.batteryHUDDuration.get());
    if (settings_.playSoundOnLowBattery.get())
        platform_.systemSound.play(Sound::LowBattery);
    if (settings_.notifyOnLowPowerMode.get())
        platform_.userNotifications.deliver({.identifier = fresh(QLatin1StringView("battery")),
                                             .title = Words::tr("Low Battery"),
                                             .body = remainingText(level),
                                             .symbol = QString(symbols::battery25),
                                             .isUrgent = true,
                                             .playsSound = !settings_.playSoundOnLowBattery.get()});
}

void PowerAlerts::deviceIsLow(const QString &name, int level)
{
    const QString shownName = name.isEmpty() ? Words::tr("Bluetooth device") : name;
    if (settings_.showBluetoothHUD.get() && !isSuppressed_(HUDContent::HUDType::Bluetooth))
        hudManager_.show({.title = shownName,
                          .subtitle = Words::tr("Low Battery"),
                          .icon = QString(symbols::battery25),
                          .level = fraction(level),
                          .type = HUDContent::HUDType::Bluetooth},
                         true, settings_.bluetoothHUDDuration.get());
    if (settings_.playSoundOnLowBluetoothBattery.get())
        platform_.systemSound.play(Sound::LowBattery);
}

void PowerAlerts::lowPowerModeChanged(bool isOn)
{
    if (!settings_.notifyOnLowPowerMode.get())
        return;
    const QString body = isOn ? Words::tr("The machine saves power and may be slower.")
                              : Words::tr("The machine runs at its usual speed again.");
    platform_.userNotifications.deliver(
        {.identifier = fresh(QLatin1StringView("lowPowerMode")),
         .title = isOn ? Words::tr("Low Power Mode On") : Words::tr("Low Power Mode Off"),
         .body = body,
         .symbol = QString(isOn ? symbols::battery25 : symbols::battery100),
         .playsSound = true});
}

} // namespace quillmere
