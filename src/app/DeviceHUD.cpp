#include "app/DeviceHUD.h"

#include "island/HUDManager.h"
#include "monitors/OutputSymbol.h"
#include "platform/AudioHardware.h"
#include "platform/BluetoothBatteries.h"
#include "settings/SettingsStore.h"

namespace quillmere {

DeviceHUD::DeviceHUD(SettingsStore &settings, HUDManager &hudManager,
                     const AudioHardware &audioHardware, BluetoothBatteries &batteries)
    : settings_(settings)
    , hudManager_(hudManager)
    , audioHardware_(audioHardware)
    , batteries_(batteries)
{
}

void DeviceHUD::show(const QString &name, bool isAirPods)
{
    const auto device = audioHardware_.describe(audioHardware_.defaultOutputDevice());
    const auto formFactor = device ? device->formFactor : AudioFormFactor::Headphones;
    const QString address = device ? device->bluetoothAddress : QString();
    HUDContent hud{.title = name,
                   .subtitle = QStringLiteral("Connected"),
                   .icon = QString(outputSymbol(formFactor, isAirPods)),
                   .type = HUDContent::HUDType::Bluetooth};
    chargeListener_ = batteries_.onChanged([this, address, hud] { updateCharge(address, hud); });
    if (const auto percent = batteries_.percent(address))
        hud.level = *percent / 100.0;
    hudManager_.show(hud, true, settings_.bluetoothHUDDuration.get());
}

void DeviceHUD::updateCharge(const QString &address, HUDContent shown)
{
    const auto &current = hudManager_.currentHUD();
    const bool stillShown = current && current->type == shown.type && current->title == shown.title;
    if (!stillShown) {
        chargeListener_.cancel();
        return;
    }
    const auto percent = batteries_.percent(address);
    if (!percent)
        return;
    shown.level = *percent / 100.0;
    if (shown != *current)
        hudManager_.show(std::move(shown), true, settings_.bluetoothHUDDuration.get());
}

} // namespace quillmere
