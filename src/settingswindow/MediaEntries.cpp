#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr std::array waveforms{QT_TRANSLATE_NOOP("Settings", "Monochrome"),
                               QT_TRANSLATE_NOOP("Settings", "Coloured"),
                               QT_TRANSLATE_NOOP("Settings", "Gradient"), ""};

constexpr std::array island{
    toggle("showMediaHUD", QT_TRANSLATE_NOOP("Settings", "Show media"),
           QT_TRANSLATE_NOOP("Settings", "Artwork and waveform beside the notch while something "
                                         "plays.")),
    toggle("hideWhileSourceAppActive",
           QT_TRANSLATE_NOOP("Settings", "Hide while the player is in front"),
           QT_TRANSLATE_NOOP("Settings", "Nothing doubles what you already look at.")),
    slider("nowPlayingIdleDuration", QT_TRANSLATE_NOOP("Settings", "Keep after pausing"),
           QT_TRANSLATE_NOOP("Settings", "How long a paused track stays on the island."),
           {.from = 0,
            .to = 10,
            .step = 0.5,
            .unit = QT_TRANSLATE_NOOP("Settings", "%1 s"),
            .decimals = 1}),
};

constexpr std::array waveform{
    picker("expandedWaveformStyle", QT_TRANSLATE_NOOP("Settings", "Expanded"),
           QT_TRANSLATE_NOOP("Settings", "Style of the waveform in the dashboard."), waveforms),
    picker("compactWaveformStyle", QT_TRANSLATE_NOOP("Settings", "Collapsed"),
           QT_TRANSLATE_NOOP("Settings", "Style of the waveform beside the notch."), waveforms),
    toggle("disableCompactWaveform", QT_TRANSLATE_NOOP("Settings", "No waveform beside the notch"),
           QT_TRANSLATE_NOOP("Settings", "Only the artwork stays there.")),
};

constexpr std::array track{
    picker("mediaControlButton", QT_TRANSLATE_NOOP("Settings", "Extra button"),
           QT_TRANSLATE_NOOP("Settings", "Where the player cannot do it, there is none."),
           {QT_TRANSLATE_NOOP("Settings", "Favourite"), QT_TRANSLATE_NOOP("Settings", "Shuffle"),
            QT_TRANSLATE_NOOP("Settings", "Repeat"), QT_TRANSLATE_NOOP("Settings", "Copy")}),
    toggle("hideMediaTitleExtras", QT_TRANSLATE_NOOP("Settings", "Short titles"),
           QT_TRANSLATE_NOOP("Settings",
                             "Without remarks such as official video, remastered or guests.")),
    toggle("enableDynamicColors", QT_TRANSLATE_NOOP("Settings", "Colours of the artwork"),
           QT_TRANSLATE_NOOP("Settings", "Waveform and buttons take the artwork's main colour.")),
    toggle("disableArtworkFlip", QT_TRANSLATE_NOOP("Settings", "Artwork does not turn over"),
           QT_TRANSLATE_NOOP("Settings", "A new cover fades in instead.")),
};

constexpr std::array source{
    toggle("nowPlayingSourceAutomatic", QT_TRANSLATE_NOOP("Settings", "Automatic"),
           QT_TRANSLATE_NOOP("Settings", "The player that plays, then a browser tab.")),
};

constexpr std::array weather{
    toggle("showWeatherHUD", QT_TRANSLATE_NOOP("Settings", "Show changes of the weather"),
           QT_TRANSLATE_NOOP("Settings", "When it is not what was shown last.")),
    toggle("weatherUseFahrenheit", QT_TRANSLATE_NOOP("Settings", "Fahrenheit"),
           QT_TRANSLATE_NOOP("Settings", "Temperatures in °F instead of °C.")),
};

constexpr SettingEntry showFileTray = toggle(
    "showFileTray", QT_TRANSLATE_NOOP("Settings", "File tray"),
    QT_TRANSLATE_NOOP("Settings", "Files dropped on the island stay on a page of their own."),
    SettingNeed::FileDrags);

constexpr std::array fileTray{
    showFileTray,
    number("fileTrayMaxItems", QT_TRANSLATE_NOOP("Settings", "Keep at most"),
           QT_TRANSLATE_NOOP("Settings", "The oldest file leaves first."),
           {.from = 1, .to = 20, .unit = QT_TRANSLATE_NOOP("Settings", "%1 files")}),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::NowPlaying, QT_TRANSLATE_NOOP("Settings", "Island"), island},
    SettingGroup{SettingsPage::NowPlaying, QT_TRANSLATE_NOOP("Settings", "Waveform"), waveform},
    SettingGroup{SettingsPage::NowPlaying, QT_TRANSLATE_NOOP("Settings", "Track"), track},
    SettingGroup{SettingsPage::NowPlaying, QT_TRANSLATE_NOOP("Settings", "Source"), source},
    SettingGroup{SettingsPage::Weather, QT_TRANSLATE_NOOP("Settings", "Weather"), weather},
    SettingGroup{SettingsPage::FileTray, QT_TRANSLATE_NOOP("Settings", "Tray"), fileTray},
};

} // namespace

std::span<const SettingGroup> media()
{
    return groups;
}

} // namespace quillmere::entries
