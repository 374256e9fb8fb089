#pragma once

#include "settings/Choices.h"

#include <QString>

namespace quillmere {

class AudioOutputPicker;
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
    QString soundDevice; ///< the symbol of where sound goes; empty = a speaker that shows the level
    Level display;
    bool hideBatteryLabel = false;
    bool hideBatteryPercentage = false;
    bool hideFocusLabel = false;
    HUDAppearanceStyle displayStyle = HUDAppearanceStyle::White;
};

HUDLook hudLook(const SettingsStore &settings, const AudioOutputPicker &output);

} // namespace quillmere
