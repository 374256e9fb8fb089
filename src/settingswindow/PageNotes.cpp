#include "settingswindow/PageNotes.h"

#include "app/AppEvents.h"
#include "app/Messages.h"
#include "app/WeatherReports.h"
#include "island/HUDManager.h"
#include "messages/WatchedNotificationApp.h"
#include "platform/AudioHardware.h"
#include "platform/DisplayBrightness.h"
#include "platform/GlobalEvents.h"
#include "platform/MediaRemote.h"
#include "platform/NotificationCenter.h"
#include "platform/PanelWindow.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/StatusItem.h"
#include "settings/SettingsStore.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingsServices.h"

#include <QDir>
#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr QLatin1StringView licenceAddress{"https://opensource.org/license/mit"};

QString withoutBattery(const Platform &platform)
{
    if (!platform.powerSources.isAvailable())
        return translated(QT_TRANSLATE_NOOP(
            "Settings", "The power service does not answer. Install the package upower."));
    return platform.powerSources.status()
               ? QString()
               : translated(QT_TRANSLATE_NOOP("Settings", "This machine has no battery."));
}

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
    case SettingsPage::Display:
        display();
        break;
    case SettingsPage::Sound:
        sound();
        break;
    case SettingsPage::Email:
        email();
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

void PageNotes::general()
{
    if (services_.platform.statusItem.isOnBar())
        return;
    SettingRow *bar = row("statusBar", QT_TRANSLATE_NOOP("Settings", "Status bar"));
    bar->setWarning(translated(QT_TRANSLATE_NOOP(
        "Settings", "This desktop has no place for status icons, so there is no menu there. "
                    "On GNOME, the AppIndicator extension adds one.")));
    group(QT_TRANSLATE_NOOP("Settings", "Desktop"), {bar});
}

void PageNotes::battery()
{
    SettingRow *machine = row("machineBattery", QT_TRANSLATE_NOOP("Settings", "This machine"));
    PowerSources &power = services_.platform.powerSources;
    const auto show = [this, machine, &power] {
        machine->setWarning(withoutBattery(services_.platform));
        const auto status = power.status();
        machine->setExplanation(
            status ? translated(QT_TRANSLATE_NOOP("Settings", "The battery is at %1 %."))
                         .arg(QLocale().toString(status->level))
                   : QString());
    };
    show();
    tasks_.push_back(power.onChanged(show));
    tasks_.push_back(power.onAvailabilityChanged([show](bool) { show(); }));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {machine});
}

void PageNotes::display()
{
    SettingRow *found = row("display", QT_TRANSLATE_NOOP("Settings", "This display"));
    DisplayBrightness &display = services_.platform.displayBrightness;
    const auto show = [found, &display](bool isAvailable) {
        const auto brightness = display.brightness();
        found->setExplanation(
            isAvailable && brightness
                ? translated(QT_TRANSLATE_NOOP("Settings", "Its brightness is %1 %."))
                      .arg(QLocale().toString(std::lround(100 * *brightness)))
                : QString());
        found->setWarning(isAvailable
                              ? QString()
                              : translated(QT_TRANSLATE_NOOP(
                                    "Settings", "No display here tells its brightness. For an "
                                                "external one, load the module i2c-dev and join "
                                                "the group i2c.")));
    };
    show(display.isAvailable());
    tasks_.push_back(display.onAvailabilityChanged(show));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::sound()
{
    SettingRow *found = row("output", QT_TRANSLATE_NOOP("Settings", "Output"));
    AudioHardware &audio = services_.platform.audioHardware;
    const auto show = [found, &audio](bool isAvailable) {
        const auto device = audio.describe(audio.defaultOutputDevice());
        found->setExplanation(isAvailable && device ? device->name.value_or(QString()) : QString());
        found->setWarning(isAvailable
                              ? QString()
                              : translated(QT_TRANSLATE_NOOP(
                                    "Settings", "No sound server answers. Start it with: systemctl "
                                                "--user start pipewire-pulse")));
    };
    show(audio.isAvailable());
    tasks_.push_back(audio.onAvailabilityChanged(show));
    if (auto task = audio.onDefaultOutputChanged([show] { show(true); }))
        tasks_.push_back(std::move(*task));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::email()
{
    SettingRow *source = row("mailSource", QT_TRANSLATE_NOOP("Settings", "Mail folders"),
                             QT_TRANSLATE_NOOP("Settings", "Looking…"));
    tasks_.push_back(services_.messages.mail().findSources([source](const QString &places) {
        source->setExplanation(places);
        if (places.isEmpty())
            source->setWarning(translated(QT_TRANSLATE_NOOP(
                "Settings", "No mail was found here: no Maildir, mbox or notmuch, and no "
                            "Thunderbird or Evolution. A program unread-mail of your own in the "
                            "folder scripts beside the settings can answer instead.")));
    }));
    SettingRow *test = row("mailTest", QT_TRANSLATE_NOOP("Settings", "Test"),
                           QT_TRANSLATE_NOOP("Settings", "Shows a mail as it would come."));
    test->setButtonTitle(translated(QT_TRANSLATE_NOOP("Settings", "Send a test")));
    test->onActivate = [this, test] {
        services_.messages.mail().sendTestNotification(
            [test](const QString &text) { test->setExplanation(text); });
    };
    group(QT_TRANSLATE_NOOP("Settings", "Source"), {source, test});
}

void PageNotes::messages(WatchedNotificationApp app)
{
    SettingRow *source = row(
        "messageSource", QT_TRANSLATE_NOOP("Settings", "Where from"),
        QT_TRANSLATE_NOOP("Settings", "From the notifications the application shows on this "
                                      "desktop. Turn them on there; nothing is read elsewhere."));
    SettingRow *test = row("messageTest", QT_TRANSLATE_NOOP("Settings", "Test"),
                           QT_TRANSLATE_NOOP("Settings", "Shows the last message that came."));
    test->setButtonTitle(translated(QT_TRANSLATE_NOOP("Settings", "Test")));
    test->onActivate = [this, app, test = QPointer(test)] {
        services_.messages.notifications().test(app, [test](const QString &text) {
            if (test)
                test->setExplanation(text);
        });
    };
    group(QT_TRANSLATE_NOOP("Settings", "Source"), {source, test});
}

void PageNotes::nowPlaying()
{
    SettingRow *found = row("player", QT_TRANSLATE_NOOP("Settings", "Playing now"));
    if (!services_.platform.mediaRemote.isAvailable())
        found->setWarning(translated(
            QT_TRANSLATE_NOOP("Settings", "There is no session bus, so no player can be asked.")));
    showPlayer(*found);
    connect(&services_.hudManager, &HUDManager::currentNowPlayingChanged, found,
            [this, found] { showPlayer(*found); });
    SettingRow *tabs = row(
        "browserTabs", QT_TRANSLATE_NOOP("Settings", "Browser tabs"),
        QT_TRANSLATE_NOOP("Settings", "Chromium and its kin tell of their tabs only when they are "
                                      "started so: chromium --remote-debugging-port=0"));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found, tabs});
}

void PageNotes::showPlayer(SettingRow &row) const
{
    const auto &track = services_.hudManager.currentNowPlaying();
    if (!track)
        return row.setExplanation(
            translated(QT_TRANSLATE_NOOP("Settings", "No player plays anything.")));
    const QString application = track->bundleID.value_or(QString());
    row.setExplanation(application.isEmpty()
                           ? track->title
                           : translated(QT_TRANSLATE_NOOP("Settings", "%1, from %2"))
                                 .arg(track->title, application));
}

void PageNotes::weather()
{
    WeatherService &service = services_.weather.service();
    SettingRow *place = row("place", QT_TRANSLATE_NOOP("Settings", "Place"));
    SettingRow *report =
        button("report", QT_TRANSLATE_NOOP("Settings", "Weather now"), "",
               QT_TRANSLATE_NOOP("Settings", "Refresh"), [&service] { service.refresh(); });
    showPlace(*place);
    showWeather(*report);
    connect(&service, &WeatherService::currentAuthStatusChanged, place,
            [this, place] { showPlace(*place); });
    const auto refreshed = [this, report] { showWeather(*report); };
    connect(&service, &WeatherService::cachedWeatherChanged, report, refreshed);
    connect(&service, &WeatherService::lastUpdateChanged, report, refreshed);
    connect(&services_.settings, &SettingsStore::didChange, report, refreshed);
    group(QT_TRANSLATE_NOOP("Settings", "Source"), {place, report});
}

void PageNotes::showPlace(SettingRow &row)
{
    WeatherService &service = services_.weather.service();
    row.setWarning({});
    row.setButtonTitle({});
    if (const auto &typed = services_.weather.place().place()) {
        row.setExplanation(
            translated(QT_TRANSLATE_NOOP("Settings", "%1, as you typed it.")).arg(typed->name));
        row.setButtonTitle(translated(QT_TRANSLATE_NOOP("Settings", "Forget it")));
        row.onActivate = [this, &row] {
            services_.weather.place().setPlace({});
            showPlace(row);
        };
        return;
    }
    row.setExplanation({});
    switch (service.currentAuthStatus()) {
    case AuthorizationStatus::AuthorizedAlways:
        row.setExplanation(translated(QT_TRANSLATE_NOOP(
            "Settings", "Where this machine is, as its location service tells.")));
        break;
    case AuthorizationStatus::NotDetermined:
        row.setExplanation(translated(QT_TRANSLATE_NOOP(
            "Settings", "Nobody was asked yet. You can also type a place on the island.")));
        row.setButtonTitle(translated(QT_TRANSLATE_NOOP("Settings", "Ask")));
        row.onActivate = [&service] { service.requestPermission([](bool) {}); };
        break;
    case AuthorizationStatus::Denied:
        row.setWarning(translated(QT_TRANSLATE_NOOP(
            "Settings", "The location is refused. Allow it in the privacy settings of the "
                        "desktop, or type a place on the island.")));
        break;
    case AuthorizationStatus::Restricted:
        row.setWarning(translated(QT_TRANSLATE_NOOP(
            "Settings", "There is no location service. Install the package geoclue-2.0, or type "
                        "a place on the island.")));
        break;
    }
}

void PageNotes::showWeather(SettingRow &row) const
{
    const auto &weather = services_.weather.service().cachedWeather();
    if (!weather)
        return row.setExplanation(
            translated(QT_TRANSLATE_NOOP("Settings", "None was reported yet.")));
    const bool fahrenheit = services_.settings.weatherUseFahrenheit.get();
    const double degrees = fahrenheit ? weather->temperatureF : weather->temperature;
    row.setExplanation(translated(QT_TRANSLATE_NOOP("Settings", "%1: %2 %3, %4"))
                           .arg(weather->locationName, QLocale().toString(std::lround(degrees)),
                                fahrenheit ? QStringLiteral("°F") : QStringLiteral("°C"),
                                weather->conditionLabel));
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
