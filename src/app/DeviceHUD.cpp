#include "app/DeviceHUD.h"

#include "island/HUDManager.h"
#include "monitors/OutputSymbol.h"
#include "platform/AudioHardware.h"
#include "platform/BluetoothBatteries.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(DeviceHUD)
};

} // namespace

DeviceHUD::DeviceHUD(SettingsStore &settings, HUDManager &hudManager,
                     const AudioHardware &audioHardware, BluetoothBatteries &batteries)
    : settings_(settings)
    , hudManager_(hudManager)
    , audioHardware_(audioHardware)
    , batteries_(batteries)
{
    QObject::connect(&hudManager_, &HUDManager::currentHUDChanged, &context_, [this] {
        if (!isShown())
            chargeListener_.cancel();
    });
}

void DeviceHUD::show(const QString &name, bool isAirPods)
{
    const auto device = audioHardware_.describe(audioHardware_.defaultOutputDevice());
    const auto formFactor = device ? device->formFactor : AudioFormFactor::Headphones;
    const QString address = device ? device->bluetoothAddress : QString();
    HUDContent hud{.title = name,
                   .subtitle = Words::tr("Connected"),
                   .icon = QString(outputSymbol(formFactor, isAirPods)),
                   .type = HUDContent::HUDType::Bluetooth};
    shownName_ = name;
    auto listener = batteries_.onChanged([this, address, hud] { updateCharge(address, hud); });
    if (const auto percent = batteries_.percent(address))
        hud.level = *percent / 100.0;
    hudManager_.show(hud, true, settings_.bluetoothHUDDuration.get());
    if (isShown())
        chargeListener_ = std::move(listener);
}

bool DeviceHUD::isShown() const
{
    const auto &current = hudManager_.currentHUD();
    return current && current->type == HUDContent::HUDType::Bluetooth &&
           current->title == shownName_;
}

void DeviceHUD::updateCharge(const QString &address, HUDContent shown)
{
    const auto percent = batteries_.percent(address);
    if (!percent)
        return;
    shown.level = *percent / 100.0;
    if (shown != hudManager_.currentHUD())
        hudManager_.show(std::move(shown), true, settings_.bluetoothHUDDuration.get());
}

} // namespace quillmere
