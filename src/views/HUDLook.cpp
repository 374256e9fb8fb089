#include "views/HUDLook.h"

#include "settings/SettingsStore.h"

namespace quillmere {

HUDLook hudLook(const SettingsStore &settings)
{
    return {.sound = {.showPercentage = settings.showVolumePercentage.get(),
                      .hideLabel = settings.soundHideLabel.get(),
                      .symbolSize = settings.soundSymbolSizeMode.get(),
                      .speed = settings.soundHUDAnimationSpeed.get()},
            .soundTheme = settings.soundHUDColorTheme.get(),
            .display = {.showPercentage = settings.showBrightnessPercentage.get(),
                        .hideLabel = settings.displayHideLabel.get(),
                        .symbolSize = settings.displaySymbolSizeMode.get(),
                        .speed = settings.displayAnimationSpeed.get()},
            .hideBatteryLabel = settings.hideBatteryLabel.get(),
            .hideBatteryPercentage = settings.hideBatteryPercentage.get(),
            .displayStyle = settings.displayAppearanceStyle.get()};
}

} // namespace quillmere
