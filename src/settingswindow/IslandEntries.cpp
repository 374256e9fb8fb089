#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr SettingRange points(double to)
{
    return {.from = 0,
            .to = to,
            .step = 2,
            .unit = QT_TRANSLATE_NOOP("Settings", "%1 pt"),
            .zero = QT_TRANSLATE_NOOP("Settings", "Standard")};
}

constexpr std::array looks{
    picker("islandAppearance", QT_TRANSLATE_NOOP("Settings", "Appearance"),
           QT_TRANSLATE_NOOP("Settings", "How the open island is drawn. The pill is always black."),
           {QT_TRANSLATE_NOOP("Settings", "Glass"), QT_TRANSLATE_NOOP("Settings", "Classic")}),
    slider("glassTransparency", QT_TRANSLATE_NOOP("Settings", "Transparency"),
           QT_TRANSLATE_NOOP("Settings", "How much of the wallpaper the glass lets through."),
           {.from = 0,
            .to = 1,
            .step = 0.05,
            .unit = QT_TRANSLATE_NOOP("Settings", "%1 %"),
            .factor = 100}),
    toggle("useAccentColor", QT_TRANSLATE_NOOP("Settings", "Use the accent colour"),
           QT_TRANSLATE_NOOP("Settings", "Marks and bars take the desktop's accent colour.")),
};

constexpr std::array behaviour{
    toggle("expandNotchOnHover", QT_TRANSLATE_NOOP("Settings", "Open on hover"),
           QT_TRANSLATE_NOOP("Settings", "The pointer alone opens the island, without a click.")),
    slider("autoCollapseDelay", QT_TRANSLATE_NOOP("Settings", "Close after"),
           QT_TRANSLATE_NOOP("Settings", "How long the island stays open once the pointer left."),
           {.from = 0.5,
            .to = 15,
            .step = 0.5,
            .unit = QT_TRANSLATE_NOOP("Settings", "%1 s"),
            .decimals = 1}),
    toggle("hapticFeedback", QT_TRANSLATE_NOOP("Settings", "Haptic feedback"),
           QT_TRANSLATE_NOOP("Settings", "A short buzz on devices that have a motor for it.")),
    picker("idleActivityType", QT_TRANSLATE_NOOP("Settings", "Beside the notch"),
           QT_TRANSLATE_NOOP("Settings", "What the resting pill shows. The calendar has nothing to "
                                         "show there yet."),
           {QT_TRANSLATE_NOOP("Settings", "Nothing"), QT_TRANSLATE_NOOP("Settings", "Media"),
            QT_TRANSLATE_NOOP("Settings", "Calendar"), QT_TRANSLATE_NOOP("Settings", "Both")}),
    toggle("idleActivityMostRecent", QT_TRANSLATE_NOOP("Settings", "Show the last event"),
           QT_TRANSLATE_NOOP("Settings", "With nothing else beside the notch, what came last.")),
};

constexpr std::array place{
    picker("displaySelection", QT_TRANSLATE_NOOP("Settings", "Screen"),
           QT_TRANSLATE_NOOP("Settings", "Which screen carries the island."),
           {QT_TRANSLATE_NOOP("Settings", "Built-in"), QT_TRANSLATE_NOOP("Settings", "Main"),
            QT_TRANSLATE_NOOP("Settings", "Active")}),
    number("notchWidth", QT_TRANSLATE_NOOP("Settings", "Width of the pill"),
           QT_TRANSLATE_NOOP("Settings", "On screens without a camera housing; 60 to 600."),
           points(600)),
    number("notchHeight", QT_TRANSLATE_NOOP("Settings", "Height of the pill"),
           QT_TRANSLATE_NOOP("Settings", "On screens without a camera housing; 20 to 100."),
           points(100)),
    toggle(
        "hideInFullscreen", QT_TRANSLATE_NOOP("Settings", "Hide over full-screen windows"),
        QT_TRANSLATE_NOOP("Settings", "The resting pill goes away; what happens is still shown."),
        SettingNeed::FullscreenDetection),
    toggle("disableInFullscreen", QT_TRANSLATE_NOOP("Settings", "Silent over full-screen windows"),
           QT_TRANSLATE_NOOP("Settings", "Nothing at all is shown over a full-screen window."),
           SettingNeed::FullscreenDetection),
    toggle("hideInMissionControl", QT_TRANSLATE_NOOP("Settings", "Hide in the overview"),
           QT_TRANSLATE_NOOP("Settings", "Leaves the island out of the desktop's overview."),
           SettingNeed::OverviewHiding),
    toggle("hideFromScreenCapture", QT_TRANSLATE_NOOP("Settings", "Hide from screen capture"),
           QT_TRANSLATE_NOOP("Settings", "Leaves the island out of screenshots and recordings."),
           SettingNeed::CaptureHiding),
};

constexpr std::array gestures{
    toggle("swipeToToggleOpen", QT_TRANSLATE_NOOP("Settings", "Swipe to open and close"),
           QT_TRANSLATE_NOOP("Settings", "Down opens the island, up closes it.")),
    toggle("swipeToCycleActivity", QT_TRANSLATE_NOOP("Settings", "Swipe through events"),
           QT_TRANSLATE_NOOP("Settings", "Sideways goes through what came lately.")),
    toggle("swipeToDismissActivity", QT_TRANSLATE_NOOP("Settings", "Swipe to dismiss"),
           QT_TRANSLATE_NOOP("Settings", "Up takes away what is shown.")),
    toggle("swipeToSkipMedia", QT_TRANSLATE_NOOP("Settings", "Swipe to skip a track"),
           QT_TRANSLATE_NOOP("Settings", "Sideways over playing media goes to the next or last.")),
    toggle("naturalMovement", QT_TRANSLATE_NOOP("Settings", "Natural direction"),
           QT_TRANSLATE_NOOP("Settings", "Content follows the fingers instead of the scroll bar.")),
};

constexpr std::array start{
    toggle("launchAtLogin", QT_TRANSLATE_NOOP("Settings", "Start at login"),
           QT_TRANSLATE_NOOP("Settings", "Quillmere is there as soon as you are.")),
    toggle("syncSettingsViaICloud", QT_TRANSLATE_NOOP("Settings", "Share settings"),
           QT_TRANSLATE_NOOP("Settings", "Through the folder below, from the next start on.")),
    local(text("cloudFolder", QT_TRANSLATE_NOOP("Settings", "Shared folder"),
               QT_TRANSLATE_NOOP("Settings", "One that Nextcloud, Syncthing or the like carries to "
                                             "your other machines. Used from the next start on."))),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "Island"), looks},
    SettingGroup{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "Behaviour"), behaviour},
    SettingGroup{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "Gestures"), gestures},
    SettingGroup{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "Size and place"), place},
    SettingGroup{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "Start and sharing"), start},
};

} // namespace

std::span<const SettingGroup> island()
{
    return groups;
}

} // namespace quillmere::entries
