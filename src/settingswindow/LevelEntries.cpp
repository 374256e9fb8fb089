#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr std::array speeds{QT_TRANSLATE_NOOP("Settings", "Smooth"),
                            QT_TRANSLATE_NOOP("Settings", "Fast"),
                            QT_TRANSLATE_NOOP("Settings", "Instant"), ""};
constexpr std::array sizes{QT_TRANSLATE_NOOP("Settings", "Keep size"),
                           QT_TRANSLATE_NOOP("Settings", "Grow"), "", ""};

constexpr std::array display{
    toggle("displayHUDsEnabled", QT_TRANSLATE_NOOP("Settings", "Display messages"),
           QT_TRANSLATE_NOOP("Settings", "All that the display has to tell; off is off for all.")),
    toggle(
        "showBrightnessHUD", QT_TRANSLATE_NOOP("Settings", "Show the brightness"),
        QT_TRANSLATE_NOOP("Settings", "When you change it. What the machine does is not shown.")),
    slider("brightnessHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long the brightness stays on the island."),
           hudSeconds),
};

constexpr std::array displayStyle{
    picker("displayAppearanceStyle", QT_TRANSLATE_NOOP("Settings", "Style"),
           QT_TRANSLATE_NOOP("Settings", "The colour of the bar."),
           {QT_TRANSLATE_NOOP("Settings", "White"), QT_TRANSLATE_NOOP("Settings", "Accent"),
            QT_TRANSLATE_NOOP("Settings", "Glow")}),
    picker("displayAnimationSpeed", QT_TRANSLATE_NOOP("Settings", "Motion"),
           QT_TRANSLATE_NOOP("Settings", "How the bar gets to a new level."), speeds),
    picker("displaySymbolSizeMode", QT_TRANSLATE_NOOP("Settings", "Symbol"),
           QT_TRANSLATE_NOOP("Settings", "Whether the sun grows with the level."), sizes),
    toggle("showBrightnessPercentage", QT_TRANSLATE_NOOP("Settings", "Show the percentage"),
           QT_TRANSLATE_NOOP("Settings", "A figure beside the bar.")),
    toggle("displayHideLabel", QT_TRANSLATE_NOOP("Settings", "Hide the label"),
           QT_TRANSLATE_NOOP("Settings", "Without the word Min at the dark end.")),
    toggle("displayDisableOvershoot", QT_TRANSLATE_NOOP("Settings", "No bump at the ends"),
           QT_TRANSLATE_NOOP("Settings", "The bar stops short instead of bouncing.")),
};

constexpr std::array sound{
    toggle("soundHUDsEnabled", QT_TRANSLATE_NOOP("Settings", "Sound messages"),
           QT_TRANSLATE_NOOP("Settings", "All that sound has to tell; off is off for all.")),
    toggle("showVolumeHUD", QT_TRANSLATE_NOOP("Settings", "Show the volume"),
           QT_TRANSLATE_NOOP("Settings", "Whoever changes it.")),
    slider("volumeHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long the volume stays on the island."), hudSeconds),
    toggle("volumeScrollEnabled", QT_TRANSLATE_NOOP("Settings", "Scroll to change the volume"),
           QT_TRANSLATE_NOOP("Settings", "With the pointer over the resting pill.")),
};

constexpr std::array soundStyle{
    picker("soundHUDColorTheme", QT_TRANSLATE_NOOP("Settings", "Style"),
           QT_TRANSLATE_NOOP("Settings", "The colour of the bar."),
           {QT_TRANSLATE_NOOP("Settings", "White"), QT_TRANSLATE_NOOP("Settings", "Accent"),
            QT_TRANSLATE_NOOP("Settings", "Loudness")}),
    picker("soundHUDAnimationSpeed", QT_TRANSLATE_NOOP("Settings", "Motion"),
           QT_TRANSLATE_NOOP("Settings", "How the bar gets to a new level."), speeds),
    picker("soundDisplayType", QT_TRANSLATE_NOOP("Settings", "Symbol"),
           QT_TRANSLATE_NOOP("Settings", "A speaker, or the device that sounds."),
           {QT_TRANSLATE_NOOP("Settings", "Speaker"), QT_TRANSLATE_NOOP("Settings", "Device")}),
    picker("soundSymbolSizeMode", QT_TRANSLATE_NOOP("Settings", "Size of the symbol"),
           QT_TRANSLATE_NOOP("Settings", "Whether the symbol grows with the level."), sizes),
    toggle("showVolumePercentage", QT_TRANSLATE_NOOP("Settings", "Show the percentage"),
           QT_TRANSLATE_NOOP("Settings", "A figure beside the bar.")),
    toggle("soundHideLabel", QT_TRANSLATE_NOOP("Settings", "Hide the label"),
           QT_TRANSLATE_NOOP("Settings", "Without the word Mute at the silent end.")),
    toggle("soundDisableOvershoot", QT_TRANSLATE_NOOP("Settings", "No bump at the ends"),
           QT_TRANSLATE_NOOP("Settings", "The bar stops short instead of bouncing.")),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::Display, QT_TRANSLATE_NOOP("Settings", "Brightness"), display},
    SettingGroup{SettingsPage::Display, QT_TRANSLATE_NOOP("Settings", "Look"), displayStyle},
    SettingGroup{SettingsPage::Sound, QT_TRANSLATE_NOOP("Settings", "Volume"), sound},
    SettingGroup{SettingsPage::Sound, QT_TRANSLATE_NOOP("Settings", "Look"), soundStyle},
};

} // namespace

std::span<const SettingGroup> levels()
{
    return groups;
}

} // namespace quillmere::entries
