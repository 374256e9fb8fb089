#include "settingswindow/SettingsCatalog.h"

#include "settingswindow/EntryTables.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace quillmere {

namespace {

constexpr QLatin1StringView noCalendar{"the local calendar is not read"};
constexpr QLatin1StringView noLockScreen{"nothing is shown on the lock screen"};
constexpr QLatin1StringView noMonitor{"nothing gathers what it would show"};

constexpr std::array hidden{
    HiddenSetting{QLatin1StringView{"hasCompletedOnboarding"},
                  QLatin1StringView{"set by the first run"}},
    HiddenSetting{QLatin1StringView{"googleAccountEmail"}, QLatin1StringView{"set by signing in"}},
    HiddenSetting{QLatin1StringView{"connectivityUse3DModels"},
                  QLatin1StringView{"there are no models to draw"}},
    HiddenSetting{QLatin1StringView{"playSoundOnSleepFocus"},
                  QLatin1StringView{"the desktop has one Do Not Disturb and no kinds of it"}},
    HiddenSetting{QLatin1StringView{"showCalendarHUD"}, noCalendar},
    HiddenSetting{QLatin1StringView{"calendarProvider"}, noCalendar},
    HiddenSetting{QLatin1StringView{"timeBeforeCalendarEvent"}, noCalendar},
    HiddenSetting{QLatin1StringView{"useCalendarColor"}, noCalendar},
    HiddenSetting{QLatin1StringView{"playSoundOnCalendarEvent"}, noCalendar},
    HiddenSetting{QLatin1StringView{"playHourlyChime"}, noCalendar},
    HiddenSetting{QLatin1StringView{"alwaysShowMonthView"}, noCalendar},
    HiddenSetting{QLatin1StringView{"notifyWhenTimeToLeave"}, noCalendar},
    HiddenSetting{QLatin1StringView{"showLockScreenHUD"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenStyle"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenUseClearArtwork"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenIdleDuration"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenShowVolumeControl"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenOffsetTuning"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenWeather"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenKeepAwake"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenShowOnScreenSaver"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenPlaySoundOnLock"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenPlaySoundOnUnlock"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenAllowBattery"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenAllowConnectivity"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenAllowFocus"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenAllowCalendar"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"lockScreenAllowNowPlaying"}, noLockScreen},
    HiddenSetting{QLatin1StringView{"enableCameraMirror"}, noMonitor},
    HiddenSetting{QLatin1StringView{"enableAppShortcuts"}, noMonitor},
    HiddenSetting{QLatin1StringView{"enableQuickNotes"}, noMonitor},
    HiddenSetting{QLatin1StringView{"enableBookmarks"}, noMonitor},
    HiddenSetting{QLatin1StringView{"enableReminders"}, noMonitor},
    HiddenSetting{QLatin1StringView{"enableClipboardHistory"}, noMonitor},
    HiddenSetting{QLatin1StringView{"showNetworkSpeed"}, noMonitor},
};

std::vector<SettingGroup> inPageOrder()
{
    std::vector<SettingGroup> all;
    for (const auto part : {entries::island(), entries::alerts(), entries::messages(),
                            entries::levels(), entries::media(), entries::tools()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace

std::span<const SettingGroup> settingGroups()
{
    static const std::vector<SettingGroup> all = inPageOrder();
    return all;
}

std::span<const HiddenSetting> hiddenSettings()
{
    return hidden;
}

QString translated(const char *text)
{
    return *text ? QCoreApplication::translate("Settings", text) : QString();
}

QString displayText(const SettingRange &range, double value)
{
    if (range.zero && value == 0)
        return translated(range.zero);
    return translated(range.unit)
        .arg(QLocale().toString(value * range.factor, 'f', range.decimals));
}

} // namespace quillmere
