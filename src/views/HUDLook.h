#pragma once

#include "settings/Choices.h"

namespace quillmere {

class SettingsStore;

/// The settings that decide how a HUD looks, read at one moment.
struct HUDLook {
    struct Level {
        bool showPercentage = false;
        bool hideLabel = false;
        SymbolSizeMode symbolSize = SymbolSizeMode::Scale;
        AnimationSpeed speed = AnimationSpeed::Fast;
    };
    Level sound;
    HUDColorTheme soundTheme = HUDColorTheme::White;
    Level display;
    bool hideBatteryLabel = false;
    bool hideBatteryPercentage = false;
    HUDAppearanceStyle displayStyle = HUDAppearanceStyle::White;
};

HUDLook hudLook(const SettingsStore &settings);

} // namespace quillmere
