#include "settingswindow/PageNotes.h"

#include "app/AppEvents.h"
#include "messages/WatchedNotificationApp.h"
#include "platform/GlobalEvents.h"
#include "platform/NotificationCenter.h"
#include "platform/PanelWindow.h"
#include "platform/Platform.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingsServices.h"

#include <QDir>

namespace quillmere {

namespace {

constexpr QLatin1StringView licenceAddress{"https://opensource.org/license/mit"};

} // namespace

QString missing(SettingNeed need, const Platform &platform)
{
    const auto panel = platform.panelWindow.capabilities();
    switch (need) {
    case SettingNeed::Nothing:
        return {};
    case SettingNeed::CaptureHiding:
        if (!panel.hidesFromScreenCapture)
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "This desktop has no way to leave a window out of screen captures."));
        return {};
    case SettingNeed::OverviewHiding:
        if (!panel.hidesInOverview)
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "This desktop decides by itself what its overview shows."));
        return {};
    case SettingNeed::FullscreenDetection:
        if (!panel.detectsFullscreen)
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "This desktop does not tell which window fills the screen."));
        return {};
    case SettingNeed::FileDrags:
        if (!platform.globalEvents.capabilities().drags)
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "This desktop tells of a drag only once it is over the island."));
        return {};
    }
    Q_UNREACHABLE();
}

PageNotes::PageNotes(SettingsServices &services, SettingsPage page)
    : services_(services)
{
    switch (page) {
    case SettingsPage::General:
        general();
        break;
    case SettingsPage::Battery:
        battery();
        break;
    case SettingsPage::Connectivity:
        connectivity();
        break;
    case SettingsPage::ClaudeCode:
        assistant();
        break;
    case SettingsPage::Focus:
        focus();
        break;
    case SettingsPage::Display:
        display();
        break;
    case SettingsPage::Sound:
        sound();
        break;
    case SettingsPage::Email:
        email();
        break;
    case SettingsPage::Google:
        google();
        break;
    case SettingsPage::Discord:
        messages(WatchedNotificationApp::Discord);
        break;
    case SettingsPage::Slack:
        messages(WatchedNotificationApp::Slack);
        break;
    case SettingsPage::NowPlaying:
        nowPlaying();
        break;
    case SettingsPage::Weather:
        weather();
        break;
    case SettingsPage::About:
        about();
        break;
    default: // nothing to tell
        break;
    }
}

SettingRow *PageNotes::row(const char *id, const char *title, const char *explanation)
{
    auto *row = new SettingRow(QString::fromLatin1(id), translated(title), this);
    row->setExplanation(translated(explanation));
    return row;
}

SettingRow *PageNotes::button(const char *id, const char *title, const char *explanation,
                              const char *buttonTitle, std::function<void()> action)
{
    SettingRow *result = row(id, title, explanation);
    result->setButtonTitle(translated(buttonTitle));
    result->onActivate = std::move(action);
    return result;
}

void PageNotes::group(const char *heading, const QList<SettingRow *> &rows)
{
    QVariantList list;
    for (SettingRow *row : rows)
        list.append(QVariant::fromValue(row));
    groups_.append(QVariantMap{{QStringLiteral("heading"), translated(heading)},
                               {QStringLiteral("rows"), list}});
}

void PageNotes::about()
{
    SettingRow *version = row("version", QT_TRANSLATE_NOOP("Settings", "Version"));
    version->setExplanation(services_.version);
    SettingRow *licence =
        button("licence", QT_TRANSLATE_NOOP("Settings", "Licence"),
               QT_TRANSLATE_NOOP("Settings", "MIT License"), QT_TRANSLATE_NOOP("Settings", "Read"),
               [this] { services_.openAddress(QUrl(licenceAddress)); });
    SettingRow *log = button("logFolder", QT_TRANSLATE_NOOP("Settings", "Log folder"), "",
                             QT_TRANSLATE_NOOP("Settings", "Open"), [this] {
                                 QDir().mkpath(services_.logFolder);
                                 services_.openAddress(QUrl::fromLocalFile(services_.logFolder));
                             });
    log->setExplanation(services_.logFolder);
    SettingRow *setup =
        button("setup", QT_TRANSLATE_NOOP("Settings", "First steps"),
               QT_TRANSLATE_NOOP("Settings", "What was shown when Quillmere first started."),
               QT_TRANSLATE_NOOP("Settings", "Show again"),
               [this] { services_.platform.notificationCenter.post(events::showOnboarding); });
    group(QT_TRANSLATE_NOOP("Settings", "Quillmere"), {version, licence, setup});
    group(QT_TRANSLATE_NOOP("Settings", "Files"), {log});
}

} // namespace quillmere
