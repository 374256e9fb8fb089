#include "settingswindow/EntryTables.h"

namespace quillmere::entries {

namespace {

constexpr SettingRange pollSeconds(double from, double to, double step)
{
    return {.from = from, .to = to, .step = step, .unit = QT_TRANSLATE_NOOP("Settings", "%1 s")};
}

constexpr std::array email{
    toggle("showEmailHUD", QT_TRANSLATE_NOOP("Settings", "Show new mail"),
           QT_TRANSLATE_NOOP("Settings", "Sender and subject, as mail arrives.")),
    slider("emailHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long a mail stays on the island."), hudSeconds),
    slider("emailPollInterval", QT_TRANSLATE_NOOP("Settings", "Look every"),
           QT_TRANSLATE_NOOP("Settings", "How often the mail folders are looked at."),
           pollSeconds(30, 600, 10)),
};

constexpr std::array google{
    toggle("showGmailHUD", QT_TRANSLATE_NOOP("Settings", "Show new Gmail messages"),
           QT_TRANSLATE_NOOP("Settings", "Sender and subject of unread messages in the inbox.")),
    toggle("showGoogleCalendarHUD", QT_TRANSLATE_NOOP("Settings", "Show coming events"),
           QT_TRANSLATE_NOOP("Settings", "Events of your Google calendar, before they begin.")),
    number("googleCalendarAlertMinutes", QT_TRANSLATE_NOOP("Settings", "Tell of events"),
           QT_TRANSLATE_NOOP("Settings", "How long before they begin."),
           {.from = 1, .to = 60, .unit = QT_TRANSLATE_NOOP("Settings", "%1 min")}),
    slider("googlePollInterval", QT_TRANSLATE_NOOP("Settings", "Look every"),
           QT_TRANSLATE_NOOP("Settings", "How often Google is asked for news."),
           pollSeconds(30, 600, 10)),
};

constexpr std::array calendarDay{
    toggle("disableActivityDuringEvents", QT_TRANSLATE_NOOP("Settings", "Quiet during events"),
           QT_TRANSLATE_NOOP("Settings", "No messages, mail and weather while an event of your "
                                         "Google calendar is going on.")),
    toggle("disableWeatherOnEmptyDay",
           QT_TRANSLATE_NOOP("Settings", "No weather on days without events"),
           QT_TRANSLATE_NOOP("Settings", "The weather then stays on its page.")),
};

constexpr std::array googleAccess{
    inBox(text("googleClientID", QT_TRANSLATE_NOOP("Settings", "Client ID"),
               QT_TRANSLATE_NOOP("Settings",
                                 "Of a Google project of your own; empty for the built-in one."))),
};

constexpr std::array discord{
    toggle("showDiscordHUD", QT_TRANSLATE_NOOP("Settings", "Show messages"),
           QT_TRANSLATE_NOOP("Settings", "Who wrote and what, as it comes.")),
    slider("discordHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long a message stays on the island."), hudSeconds),
    slider("discordPollInterval", QT_TRANSLATE_NOOP("Settings", "Look every"),
           QT_TRANSLATE_NOOP("Settings", "How often stored notifications are looked at. What the "
                                         "desktop announces is shown at once."),
           pollSeconds(5, 60, 1)),
};

constexpr std::array slack{
    toggle("showSlackHUD", QT_TRANSLATE_NOOP("Settings", "Show messages"),
           QT_TRANSLATE_NOOP("Settings", "Who wrote and what, as it comes.")),
    slider("slackHUDDuration", QT_TRANSLATE_NOOP("Settings", "Show for"),
           QT_TRANSLATE_NOOP("Settings", "How long a message stays on the island."), hudSeconds),
    slider("slackPollInterval", QT_TRANSLATE_NOOP("Settings", "Look every"),
           QT_TRANSLATE_NOOP("Settings", "How often stored notifications are looked at. What the "
                                         "desktop announces is shown at once."),
           pollSeconds(5, 60, 1)),
};

constexpr std::array groups{
    SettingGroup{SettingsPage::Email, QT_TRANSLATE_NOOP("Settings", "New mail"), email},
    SettingGroup{SettingsPage::Google, QT_TRANSLATE_NOOP("Settings", "Gmail and calendar"), google},
    SettingGroup{SettingsPage::Google, QT_TRANSLATE_NOOP("Settings", "Your day"), calendarDay},
    SettingGroup{SettingsPage::Google, QT_TRANSLATE_NOOP("Settings", "Access"), googleAccess},
    SettingGroup{SettingsPage::Discord, QT_TRANSLATE_NOOP("Settings", "Messages"), discord},
    SettingGroup{SettingsPage::Slack, QT_TRANSLATE_NOOP("Settings", "Messages"), slack},
};

} // namespace

std::span<const SettingGroup> messages()
{
    return groups;
}

} // namespace quillmere::entries
