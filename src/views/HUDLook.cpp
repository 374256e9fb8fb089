#include "views/HUDLook.h"

#include "app/AudioOutputPicker.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"

namespace quillmere {

namespace {

/// Built-in speakers, and what does not tell what it is, have no picture of their own.
QString deviceSymbol(const SettingsStore &settings, const AudioOutputPicker &output)
{
    const QString &symbol = output.current().symbol;
    const bool isWanted = settings.soundDisplayType.get() == SoundDisplayType::Device;
    return isWanted && symbol != symbols::speakerWave2 ? symbol : QString();
}

} // namespace

HUDLook hudLook(const SettingsStore &settings, const AudioOutputPicker &output)
{
    return {.sound = {.showPercentage = settings.showVolumePercentage.get(),
                      .hideLabel = settings.soundHideLabel.get(),
                      .symbolSize = settings.soundSymbolSizeMode.get(),
                      .speed = settings.soundHUDAnimationSpeed.get()},
            .soundTheme = settings.soundHUDColorTheme.get(),
            .soundDevice = deviceSymbol(settings, output),
            .display = {.showPercentage = settings.showBrightnessPercentage.get(),
                        .hideLabel = settings.displayHideLabel.get(),
                        .symbolSize = settings.displaySymbolSizeMode.get(),
                        .speed = settings.displayAnimationSpeed.get()},
            .hideBatteryLabel = settings.hideBatteryLabel.get(),
            .hideBatteryPercentage = settings.hideBatteryPercentage.get(),
            .hideFocusLabel = settings.hideFocusLabel.get(),
            .displayStyle = settings.displayAppearanceStyle.get()};
}

} // namespace quillmere
