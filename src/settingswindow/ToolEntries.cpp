#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr SettingRange minutes(double to)
{
    return {.from = 1, .to = to, .step = 1, .unit = QT_TRANSLATE_NOOP("Settings", "%1 min")};
}

constexpr std::array pomodoro{
    toggle("enablePomodoro", QT_TRANSLATE_NOOP("Settings", "Focus timer"),
           QT_TRANSLATE_NOOP("Settings", "Work and breaks by the clock, on a page of the island.")),
    number("pomodoroWorkMinutes", QT_TRANSLATE_NOOP("Settings", "Work"),
           QT_TRANSLATE_NOOP("Settings", "Length of a session."), minutes(180)),
    number("pomodoroShortBreakMinutes", QT_TRANSLATE_NOOP("Settings", "Short break"),
           QT_TRANSLATE_NOOP("Settings", "After a session."), minutes(60)),
    number("pomodoroLongBreakMinutes", QT_TRANSLATE_NOOP("Settings", "Long break"),
           QT_TRANSLATE_NOOP("Settings", "After every fourth session."), minutes(120)),
};

constexpr std::array system{
    toggle("showSystemMonitor", QT_TRANSLATE_NOOP("Settings", "System monitor"),
           QT_TRANSLATE_NOOP("Settings", "Processor, memory and disk on a page of the island.")),
};

constexpr std::array assistant{
    toggle("enableClaudeCode", QT_TRANSLATE_NOOP("Settings", "Show the assistant"),
           QT_TRANSLATE_NOOP("Settings",
                             "What Claude Code does, beside the notch. Puts a hook into "
                             "its settings while it is on, and takes it out again.")),
};

constexpr std::array countdown{
    toggle("enableCountdownTimer", QT_TRANSLATE_NOOP("Settings", "Countdown and stopwatch"),
           QT_TRANSLATE_NOOP("Settings", "A timer and a stopwatch on a page of the island.")),
};

constexpr std::array trouble{
    local(
        toggle("debugLogEnabled", QT_TRANSLATE_NOOP("Settings", "Debug log"),
               QT_TRANSLATE_NOOP("Settings", "Writes what happens and why, for finding faults."))),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::Pomodoro, QT_TRANSLATE_NOOP("Settings", "Focus timer"), pomodoro},
    SettingGroup{SettingsPage::SystemMonitor, QT_TRANSLATE_NOOP("Settings", "Load"), system},
    SettingGroup{SettingsPage::ClaudeCode, QT_TRANSLATE_NOOP("Settings", "Assistant"), assistant},
    SettingGroup{SettingsPage::CountdownTimer, QT_TRANSLATE_NOOP("Settings", "Timers"), countdown},
    SettingGroup{SettingsPage::About, QT_TRANSLATE_NOOP("Settings", "Finding faults"), trouble},
};

} // namespace

std::span<const SettingGroup> tools()
{
    return groups;
}

} // namespace quillmere::entries
