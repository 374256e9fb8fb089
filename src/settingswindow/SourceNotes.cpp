#include "settingswindow/PageNotes.h"

#include "app/Messages.h"
#include "app/WeatherReports.h"
#include "island/HUDManager.h"
#include "messages/WatchedNotificationApp.h"
#include "platform/Keychain.h"
#include "platform/MediaRemote.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "settings/SettingsStore.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingsServices.h"

#include <QLocale>
#include <QPointer>

#include <cmath>

namespace quillmere {

namespace {

QString nameOf(const KeyringStatus &keyring)
{
    return keyring.name.isEmpty()
               ? translated(QT_TRANSLATE_NOOP("Settings", "A keyring of this desktop"))
               : keyring.name;
}

/// Of a keyring that there is.
const char *textOf(KeyringStatus::Condition condition)
{
    using enum KeyringStatus::Condition;
    switch (condition) {
    case Startable:
        return QT_TRANSLATE_NOOP("Settings", "%1. It starts when it is needed.");
    case Empty:
        return QT_TRANSLATE_NOOP("Settings",
                                 "%1. It keeps nothing yet and will ask for a password for that.");
    case Locked:
        return QT_TRANSLATE_NOOP(
            "Settings", "%1. It is locked, and will ask for its password when it is needed.");
    default:
        return QT_TRANSLATE_NOOP("Settings", "%1. It is unlocked.");
    }
}

void showKeyring(SettingRow &row, const KeyringStatus &keyring)
{
    const bool isThere = keyring.condition != KeyringStatus::Condition::Missing;
    row.setExplanation(isThere ? translated(textOf(keyring.condition)).arg(nameOf(keyring))
                               : QString());
    row.setWarning(isThere ? QString()
                           : translated(QT_TRANSLATE_NOOP(
                                 "Settings", "No keyring was found, and the sign-in is kept "
                                             "nowhere else. Install the package gnome-keyring, or "
                                             "turn on the secret service of KeePassXC or "
                                             "KWallet.")));
}

} // namespace

void PageNotes::google()
{
    SettingRow *keyring = row("keyring", QT_TRANSLATE_NOOP("Settings", "Sign-in is kept in"),
                              QT_TRANSLATE_NOOP("Settings", "Looking…"));
    tasks_.push_back(services_.platform.keychain.watchKeyring(
        [keyring](const KeyringStatus &status) { showKeyring(*keyring, status); }));
    group(QT_TRANSLATE_NOOP("Settings", "Keyring"), {keyring});
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
    SettingRow *players = row("players", QT_TRANSLATE_NOOP("Settings", "Players"));
    showPlayers(*players);
    tasks_.push_back(services_.platform.notificationCenter.observe(
        mediaEvents::playersDidChange,
        [this, players](const QVariantMap &) { showPlayers(*players); }));
    SettingRow *track = row("track", QT_TRANSLATE_NOOP("Settings", "Playing now"));
    showPlayer(*track);
    connect(&services_.hudManager, &HUDManager::currentNowPlayingChanged, track,
            [this, track] { showPlayer(*track); });
    SettingRow *tabs = row(
        "browserTabs", QT_TRANSLATE_NOOP("Settings", "Browser tabs"),
        QT_TRANSLATE_NOOP("Settings", "Chromium and its kin tell of their tabs only when they are "
                                      "started so:\nchromium --remote-debugging-port=0"));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {players, track, tabs});
}

void PageNotes::showPlayers(SettingRow &row) const
{
    MediaRemote &remote = services_.platform.mediaRemote;
    const QStringList names = remote.players();
    if (!remote.isAvailable())
        return row.setWarning(translated(
            QT_TRANSLATE_NOOP("Settings", "There is no session bus, so no player can be asked.")));
    row.setExplanation(names.isEmpty()
                           ? translated(QT_TRANSLATE_NOOP("Settings", "No player is running."))
                           : QLocale().createSeparatedList(names));
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
    if (service.currentAuthStatus() != AuthorizationStatus::AuthorizedAlways) {
        // Also where it was refused: what has been allowed or installed since tells nobody.
        row.setButtonTitle(translated(QT_TRANSLATE_NOOP("Settings", "Ask")));
        row.onActivate = [&service] { service.requestPermission([](bool) {}); };
    }
    switch (service.currentAuthStatus()) {
    case AuthorizationStatus::AuthorizedAlways:
        row.setExplanation(translated(QT_TRANSLATE_NOOP(
            "Settings", "Where this machine is, as its location service tells.")));
        break;
    case AuthorizationStatus::NotDetermined:
        row.setExplanation(translated(QT_TRANSLATE_NOOP(
            "Settings", "Nobody was asked yet. You can also type a place on the island.")));
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

} // namespace quillmere
