#include "settingswindow/SettingsPages.h"

#include "platform/PageSymbols.h"
#include "platform/Symbols.h"
#include "weather/WeatherSymbols.h"

#include <QtGlobal>

#include <array>

namespace quillmere {

namespace {

constexpr QRgb rgb(QRgb color)
{
    return 0xff000000U | color;
}

constexpr std::array pages{
    SettingsPageInfo{SettingsPage::General, QT_TRANSLATE_NOOP("Settings", "General"),
                     symbols::pages::gearshape, rgb(0x8e8e93)},
    SettingsPageInfo{SettingsPage::Battery, QT_TRANSLATE_NOOP("Settings", "Battery"),
                     symbols::battery75, rgb(0x34c759)},
    SettingsPageInfo{SettingsPage::Connectivity, QT_TRANSLATE_NOOP("Settings", "Connectivity"),
                     symbols::headphones, rgb(0x0a84ff)},
    SettingsPageInfo{SettingsPage::Email, QT_TRANSLATE_NOOP("Settings", "Email"), symbols::envelope,
                     rgb(0x0a84ff)},
    SettingsPageInfo{SettingsPage::Google, QT_TRANSLATE_NOOP("Settings", "Google"),
                     symbols::pages::people, rgb(0xea4335)},
    SettingsPageInfo{SettingsPage::Discord, QT_TRANSLATE_NOOP("Settings", "Discord"),
                     symbols::bubbles, rgb(0x5865f2)},
    SettingsPageInfo{SettingsPage::Slack, QT_TRANSLATE_NOOP("Settings", "Slack"),
                     symbols::numberSign, rgb(0x611f69)},
    SettingsPageInfo{SettingsPage::Focus, QT_TRANSLATE_NOOP("Settings", "Focus"),
                     symbols::weather::moon, rgb(0x5e5ce6)},
    SettingsPageInfo{SettingsPage::Display, QT_TRANSLATE_NOOP("Settings", "Display"),
                     symbols::sunMax, rgb(0xff9f0a)},
    SettingsPageInfo{SettingsPage::Sound, QT_TRANSLATE_NOOP("Settings", "Sound"),
                     symbols::speakerWave3, rgb(0xff375f)},
    SettingsPageInfo{SettingsPage::NowPlaying, QT_TRANSLATE_NOOP("Settings", "Now Playing"),
                     symbols::pages::musicPlayer, rgb(0xff2d55)},
    SettingsPageInfo{SettingsPage::Weather, QT_TRANSLATE_NOOP("Settings", "Weather"),
                     symbols::weather::cloudSun, rgb(0x32ade6)},
    SettingsPageInfo{SettingsPage::FileTray, QT_TRANSLATE_NOOP("Settings", "File Tray"),
                     symbols::pages::folder, rgb(0x64748b)},
    SettingsPageInfo{SettingsPage::LockScreen, QT_TRANSLATE_NOOP("Settings", "Lock Screen"),
                     symbols::pages::lock, rgb(0x48484a),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere shows nothing on the lock screen "
                                                   "yet, so there is nothing to set here.")},
    SettingsPageInfo{SettingsPage::Clipboard, QT_TRANSLATE_NOOP("Settings", "Clipboard"),
                     symbols::pages::clipboard, rgb(0xa2845e),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere keeps no history of the clipboard "
                                                   "yet, so there is nothing to set here.")},
    SettingsPageInfo{SettingsPage::Pomodoro, QT_TRANSLATE_NOOP("Settings", "Pomodoro"),
                     symbols::timer, rgb(0xff6b6b)},
    SettingsPageInfo{SettingsPage::CameraMirror, QT_TRANSLATE_NOOP("Settings", "Camera Mirror"),
                     symbols::pages::camera, rgb(0x30b0c7),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere has no camera mirror yet, so there "
                                                   "is nothing to set here.")},
    SettingsPageInfo{SettingsPage::NetworkSpeed, QT_TRANSLATE_NOOP("Settings", "Network Speed"),
                     symbols::pages::upAndDown, rgb(0x00a3a3),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere does not measure the network yet, "
                                                   "so there is nothing to set here.")},
    SettingsPageInfo{SettingsPage::SystemMonitor, QT_TRANSLATE_NOOP("Settings", "System Monitor"),
                     symbols::pages::processor, rgb(0x636366)},
    SettingsPageInfo{SettingsPage::ClaudeCode, QT_TRANSLATE_NOOP("Settings", "Claude Code"),
                     symbols::pages::terminal, rgb(0xd97856)},
    SettingsPageInfo{SettingsPage::AppShortcuts, QT_TRANSLATE_NOOP("Settings", "App Shortcuts"),
                     symbols::pages::appGrid, rgb(0x5856d6),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere has no shortcuts to applications "
                                                   "yet, so there is nothing to set here.")},
    SettingsPageInfo{SettingsPage::QuickNotes, QT_TRANSLATE_NOOP("Settings", "Quick Notes"),
                     symbols::pages::note, rgb(0xd9a400),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere takes no notes yet, so there is "
                                                   "nothing to set here.")},
    SettingsPageInfo{SettingsPage::Bookmarks, QT_TRANSLATE_NOOP("Settings", "Bookmarks"),
                     symbols::pages::bookmark, rgb(0xbf5af2),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere keeps no bookmarks yet, so there is "
                                                   "nothing to set here.")},
    SettingsPageInfo{SettingsPage::CountdownTimer, QT_TRANSLATE_NOOP("Settings", "Countdown Timer"),
                     symbols::hourglass, rgb(0xff9500)},
    SettingsPageInfo{SettingsPage::Reminders, QT_TRANSLATE_NOOP("Settings", "Reminders"),
                     symbols::pages::checklist, rgb(0x1e90ff),
                     QT_TRANSLATE_NOOP("Settings", "Quillmere reads no reminders yet, so there is "
                                                   "nothing to set here.")},
    SettingsPageInfo{SettingsPage::About, QT_TRANSLATE_NOOP("Settings", "About"),
                     symbols::pages::infoCircle, rgb(0x8e8e93)},
};

static_assert(pages.size() == choiceTexts<SettingsPage>.size());

} // namespace

std::span<const SettingsPageInfo> settingsPages()
{
    return pages;
}

const SettingsPageInfo &info(SettingsPage page)
{
    return pages.at(static_cast<std::size_t>(page));
}

} // namespace quillmere
