#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr SettingRange percent{
    .from = 1, .to = 50, .step = 1, .unit = QT_TRANSLATE_NOOP("Settings", "%1 %")};

constexpr std::array power{
    toggle("showBatteryHUD", QT_TRANSLATE_NOOP("Settings", "Show power changes"),
           QT_TRANSLATE_NOOP("Settings",
                             "When the charger goes in or out, and when the battery is low.")),
    slider("batteryHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long a message about the battery stays."),
           hudSeconds),
    toggle("hideBatteryLabel", QT_TRANSLATE_NOOP("Settings", "Hide the label"),
           QT_TRANSLATE_NOOP("Settings", "The picture of the battery says enough.")),
    toggle("hideBatteryPercentage", QT_TRANSLATE_NOOP("Settings", "Hide the percentage"),
           QT_TRANSLATE_NOOP("Settings", "No figure beside the battery.")),
    toggle("notifyOnLowPowerMode", QT_TRANSLATE_NOOP("Settings", "Notify as well"),
           QT_TRANSLATE_NOOP("Settings",
                             "A low battery, and power saving on or off, as a notification.")),
};

constexpr std::array lowBattery{
    toggle("warnOnLowBattery", QT_TRANSLATE_NOOP("Settings", "Warn of a low battery"),
           QT_TRANSLATE_NOOP("Settings", "Once each time the charge falls below the limit.")),
    slider("lowBatteryThreshold", QT_TRANSLATE_NOOP("Settings", "Limit"),
           QT_TRANSLATE_NOOP("Settings", "The charge from which the battery counts as low."),
           percent),
    toggle("playSoundOnLowBattery", QT_TRANSLATE_NOOP("Settings", "Play a sound"),
           QT_TRANSLATE_NOOP("Settings", "Together with the warning.")),
};

constexpr std::array devices{
    toggle("showBluetoothHUD", QT_TRANSLATE_NOOP("Settings", "Show devices"),
           QT_TRANSLATE_NOOP("Settings",
                             "Headphones and speakers that connect, and devices that run low.")),
    slider("bluetoothHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long a device stays on the island."), hudSeconds),
};

constexpr std::array lowDevices{
    toggle(
        "warnOnLowBluetoothBattery", QT_TRANSLATE_NOOP("Settings", "Warn of a low device"),
        QT_TRANSLATE_NOOP("Settings", "Once each time a device's charge falls below the limit.")),
    slider("lowBluetoothBatteryThreshold", QT_TRANSLATE_NOOP("Settings", "Limit"),
           QT_TRANSLATE_NOOP("Settings", "The charge from which a device counts as low."), percent),
    toggle("playSoundOnLowBluetoothBattery", QT_TRANSLATE_NOOP("Settings", "Play a sound"),
           QT_TRANSLATE_NOOP("Settings", "Together with the warning.")),
};

constexpr std::array focus{
    toggle("showFocusHUD", QT_TRANSLATE_NOOP("Settings", "Show Do Not Disturb"),
           QT_TRANSLATE_NOOP("Settings", "When it is switched on or off on the desktop.")),
    slider("focusHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long the change stays on the island."), hudSeconds),
    toggle("hideFocusLabel", QT_TRANSLATE_NOOP("Settings", "Hide the label"),
           QT_TRANSLATE_NOOP("Settings", "The symbol says enough.")),
};

constexpr std::array whileFocused{
    toggle("focusAllowBattery", QT_TRANSLATE_NOOP("Settings", "Battery"),
           QT_TRANSLATE_NOOP("Settings", "The charger and the battery are told of meanwhile.")),
    toggle("focusAllowConnectivity", QT_TRANSLATE_NOOP("Settings", "Connectivity"),
           QT_TRANSLATE_NOOP("Settings", "Devices that connect are told of meanwhile.")),
    toggle("focusAllowDisplay", QT_TRANSLATE_NOOP("Settings", "Display"),
           QT_TRANSLATE_NOOP("Settings", "Changes of the brightness show meanwhile.")),
    toggle("focusAllowSound", QT_TRANSLATE_NOOP("Settings", "Sound"),
           QT_TRANSLATE_NOOP("Settings", "Changes of the volume show meanwhile.")),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::Battery, QT_TRANSLATE_NOOP("Settings", "Power"), power},
    SettingGroup{SettingsPage::Battery, QT_TRANSLATE_NOOP("Settings", "Low battery"), lowBattery},
    SettingGroup{SettingsPage::Connectivity, QT_TRANSLATE_NOOP("Settings", "Bluetooth"), devices},
    SettingGroup{SettingsPage::Connectivity, QT_TRANSLATE_NOOP("Settings", "Low charge"),
                 lowDevices},
    SettingGroup{SettingsPage::Focus, QT_TRANSLATE_NOOP("Settings", "Do Not Disturb"), focus},
    SettingGroup{SettingsPage::Focus, QT_TRANSLATE_NOOP("Settings", "What still shows"),
                 whileFocused},
};

} // namespace

std::span<const SettingGroup> alerts()
{
    return groups;
}

} // namespace quillmere::entries
