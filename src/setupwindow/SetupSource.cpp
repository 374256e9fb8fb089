#include "setupwindow/SetupSource.h"

#include "platform/PageSymbols.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"
#include "weather/WeatherSymbols.h"

#include <algorithm>

namespace quillmere {

std::vector<SetupSourceInfo> setupSources()
{
    const auto keys = [](auto... names) { return QStringList{QString::fromLatin1(names)...}; };
    return {
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Volume"), symbols::speakerWave2, 0xff'37'5f,
         keys("showVolumeHUD"), soundNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Brightness"), symbols::sunMax, 0xff'9f'0a,
         keys("showBrightnessHUD"), brightnessNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Now playing"), symbols::musicNote, 0xff'2d'55,
         keys("showMediaHUD"), mediaNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Headphones"), symbols::headphones, 0x0a'84'ff,
         keys("showBluetoothHUD"), headphonesNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Battery"), symbols::battery75, 0x30'c9'5a,
         keys("showBatteryHUD"), batteryNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Weather"), symbols::weather::cloudSun,
         0x32'ad'e6, keys("showWeatherHUD"), weatherNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Slack and Discord"), symbols::bubbles,
         0x58'56'd6, keys("showSlackHUD", "showDiscordHUD"), messagesNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Mail"), symbols::envelope, 0x0a'84'ff,
         keys("showEmailHUD"), mailNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "File tray"), symbols::trayAndArrowDown,
         0x64'74'8b, keys("showFileTray"), fileTrayNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Timers"), symbols::timer, 0xf0'6a'3a,
         keys("enablePomodoro", "enableCountdownTimer"), timersNeed},
        {QT_TRANSLATE_NOOP("quillmere::SetupSource", "Claude Code"), symbols::pages::terminal,
         0xd9'78'56, keys("enableClaudeCode"), nullptr, assistantNeed},
    };
}

SetupSource::SetupSource(const Platform &platform, SettingsStore &settings, SetupSourceInfo info)
    : platform_(platform)
    , info_(std::move(info))
{
    for (const QString &key : info_.keys)
        settings_.push_back(settings.registry().find(key));
    readSettings();
    connect(&settings, &SettingsStore::didChange, this, [this](const QString &key) {
        if (info_.keys.contains(key))
            readSettings();
    });
    refreshNeed();
}

QString SetupSource::title() const
{
    return tr(info_.title);
}

void SetupSource::setOn(bool on)
{
    for (Setting *setting : settings_)
        setting->setValue(on);
}

void SetupSource::readSettings()
{
    const bool on =
        std::ranges::any_of(settings_, [](const Setting *s) { return s->value().toBool(); });
    if (on == isOn_)
        return;
    isOn_ = on;
    Q_EMIT isOnChanged();
}

void SetupSource::refreshNeed()
{
    if (!info_.needOnDisk)
        return take(info_.need(platform_));
    platform_.runLoop.background(
        owner_, [look = info_.needOnDisk, &files = platform_.userFiles] { return look(files); },
        [this](const SetupNeed &need) { take(need); });
}

void SetupSource::take(const SetupNeed &need)
{
    if (need == need_)
        return;
    need_ = need;
    Q_EMIT needChanged();
}

} // namespace quillmere
