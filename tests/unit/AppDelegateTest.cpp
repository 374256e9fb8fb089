#include "app/AppEvents.h"
#include "app/FileTray.h"
#include "app/MediaPlayback.h"
#include "app/PowerAlerts.h"
#include "app/QuillmereApp.h"
#include "app/WeatherReports.h"
#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "platform/Platform.h"
#include "platform/RemoteControl.h"
#include "platform/StatePublisher.h"
#include "platform/linux/desktop/LinuxUserFiles.h"
#include "support/FakeAlerts.h"
#include "support/FakeAppearance.h"
#include "support/FakeAudioHardware.h"
#include "support/FakeBluetoothBatteries.h"
#include "support/FakeDisplayBrightness.h"
#include "support/FakeDragPasteboard.h"
#include "support/FakeGlobalEvents.h"
#include "support/FakeHaptics.h"
#include "support/FakeHostStatistics.h"
#include "support/FakeHttpClient.h"
#include "support/FakeLoginItem.h"
#include "support/FakeMedia.h"
#include "support/FakeMessageSocketServer.h"
#include "support/FakeMessages.h"
#include "support/FakePanelWindow.h"
#include "support/FakePowerSources.h"
#include "support/FakeScreens.h"
#include "support/FakeShortcutPublisher.h"
#include "support/FakeStatusItem.h"
#include "support/FakeWeather.h"
#include "support/FakeWebAuthSession.h"
#include "support/ManualRunLoop.h"
#include "support/MemoryCloudStore.h"
#include "support/MemoryUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace std::chrono_literals;

namespace {

struct RecordedState : StatePublisher {
    void publish(const QString &property, const QVariant &value) override
    {
        values.insert(property, value);
    }
    QVariantMap hud() const { return values.value(QStringLiteral("CurrentHUD")).toMap(); }
    QVariantMap values;
};

struct HeldRemoteControl : RemoteControl {
    void setHandlers(RemoteRequests handlers) override { requests = std::move(handlers); }
    RemoteRequests requests;
};

/// The whole application on fakes of the system's services.
class AppDelegateTest : public testing::Test
{
protected:
    AppDelegateTest()
    {
        speakers = audio.add({.mainVolume = 0.5F});
        audio.setDefault(speakers);
        qputenv("HOME", library.path().toUtf8());
        screens.list = {FakeScreens::plain(QStringLiteral("A"), QRectF(0, 0, 1000, 800))};
    }

    void launch(Duration settled = 5s)
    {
        app.emplace(platform, library.path(), QStringLiteral("1.0"));
        app->appDelegate().onShowOnboarding = [this] { ++setups; };
        app->launch([this] { ++terminations; });
        runLoop.advance(settled);
    }

    void setVolume(float level)
    {
        audio.change(speakers, AudioProperty::VirtualMainVolume, level);
        runLoop.settle();
    }

    void sendSlackMessage()
    {
        notificationFeed.listeners.notify({.appID = QStringLiteral("slack"),
                                           .title = QStringLiteral("Ada"),
                                           .uuid = QString::number(++messages)});
    }

    bool showsHUD() const
    {
        return app->appDelegate().contentView()->presentation() == Presentation::HUD;
    }

    ManualRunLoop runLoop;
    NotificationCenter notifications;
    MemoryUserDefaults defaults;
    MemoryUserDefaults local;
    MemoryCloudStore cloud;
    FakeLoginItem loginItem;
    FakeScreens screens;
    FakePanelWindow window;
    FakeGlobalEvents globalEvents;
    FakeAudioHardware audio;
    RecordedState state;
    HeldRemoteControl remote;
    FakeDragPasteboard dragPasteboard;
    FakeBluetoothBatteries batteries;
    FakeDisplayBrightness display;
    FakeHaptics haptics;
    FakeAppearance appearance;
    FakeStatusItem statusItem;
    FakeHttpClient http;
    FakeRunningApplications applications;
    FakeAudioStreams streams{runLoop};
    FakeScriptRunner scripts;
    FakeMediaRemote mediaRemote;
    FakeMessageSocketServer socket{runLoop};
    LinuxUserFiles files;
    FakeShortcutPublisher desktop;
    FakePowerSources power;
    FakeLowPowerMode lowPowerMode;
    FakeFocusState focus;
    FakeHostStatistics host;
    FakeUserNotifications alerts;
    FakeSystemSound sound;
    FakeLocationManager location;
    FakeGeocoder geocoder{runLoop};
    FakeKeychain keychain{runLoop};
    FakeReachability reachability;
    FakeNotificationDatabase notificationDatabase;
    FakeNotificationFeed notificationFeed;
    FakeNewMailSignal newMailSignal;
    FakeApplicationLauncher launcher;
    FakeApplicationIcons icons;
    FakeWebAuthSession webAuthSession;
    Platform platform{runLoop,
                      notifications,
                      defaults,
                      local,
                      cloud,
                      loginItem,
                      screens,
                      window,
                      globalEvents,
                      dragPasteboard,
                      applications,
                      audio,
                      streams,
                      batteries,
                      display,
                      haptics,
                      appearance,
                      statusItem,
                      http,
                      scripts,
                      mediaRemote,
                      socket,
                      files,
                      power,
                      lowPowerMode,
                      focus,
                      host,
                      alerts,
                      sound,
                      location,
                      geocoder,
                      keychain,
                      reachability,
                      notificationDatabase,
                      notificationFeed,
                      newMailSignal,
                      launcher,
                      icons,
                      webAuthSession,
                      state,
                      remote,
                      desktop};
    QTemporaryDir library;
    AudioDeviceID speakers = 0;
    int terminations = 0;
    int setups = 0;
    int messages = 0;
    mutable std::optional<QuillmereApp> app;
};

TEST_F(AppDelegateTest, AVolumeChangeBecomesAHUDForItsDuration)
{
    launch();
    EXPECT_EQ(state.values.value(QStringLiteral("Presentation")), QStringLiteral("collapsed"));
    setVolume(0.4F);
    EXPECT_EQ(state.hud().value(QStringLiteral("type")), QStringLiteral("volume"));
    EXPECT_EQ(state.hud().value(QStringLiteral("icon")), QStringLiteral("speaker.wave.2.fill"));
    EXPECT_NEAR(state.hud().value(QStringLiteral("level")).toDouble(), 0.4, 1e-6);
    EXPECT_EQ(state.values.value(QStringLiteral("Presentation")), QStringLiteral("hud"));
    EXPECT_EQ(state.values.value(QStringLiteral("Frame")).toRect(), QRect(350, 0, 300, 44));
    runLoop.advance(1499ms);
    EXPECT_TRUE(showsHUD());
    runLoop.advance(2ms);
    EXPECT_FALSE(showsHUD());
    EXPECT_TRUE(state.hud().isEmpty());
    EXPECT_EQ(state.values.value(QStringLiteral("Frame")).toRect(), QRect(437, 0, 126, 32));
}

TEST_F(AppDelegateTest, TheSetupWindowComesAtTheFirstLaunchAndWhenItIsAskedFor)
{
    launch();
    EXPECT_EQ(setups, 1);
    EXPECT_TRUE(statusItem.shown.has_value()); // which is there as well
    app->settings().hasCompletedOnboarding.set(true);
    app->terminate();
    app.reset();

    launch();
    EXPECT_EQ(setups, 1);
    notifications.post(events::showOnboarding);
    EXPECT_EQ(setups, 2);
}

TEST_F(AppDelegateTest, PowerIsToldOfAsFarAsTheSettingsWantIt)
{
    struct Case {
        const char *setting; ///< that is off
        const char *hud;     ///< of the charger that goes, then of the low battery
        const char *lowHud;
        std::size_t sounds, notifications;
    };
    const Case cases[] = {
        {"", "On Battery", "Low Battery", 1, 1},
        {"showBatteryHUD", "", "", 1, 1},
        {"warnOnLowBattery", "On Battery", "", 0, 0},
        {"playSoundOnLowBattery", "On Battery", "Low Battery", 0, 1},
        {"notifyOnLowPowerMode", "On Battery", "Low Battery", 1, 0},
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(test.setting);
        defaults.values.clear();
        if (*test.setting)
            defaults.values.insert(QString::fromLatin1(test.setting), false);
        sound.played.clear();
        alerts.shown.clear();
        power.setAvailable(false);
        power.set(BatteryStatus{.level = 11, .isCharging = true, .isPluggedIn = true});
        launch();
        power.setAvailable(true);
        runLoop.advance(10s);
        EXPECT_FALSE(showsHUD()) << "what is found is no event";
        power.set(BatteryStatus{.level = 11});
        runLoop.settle();
        EXPECT_EQ(state.hud().value(QStringLiteral("title")).toString(),
                  QString::fromLatin1(test.hud));
        runLoop.advance(10s);
        power.set(BatteryStatus{.level = 10});
        runLoop.settle();
        EXPECT_EQ(state.hud().value(QStringLiteral("title")).toString(),
                  QString::fromLatin1(test.lowHud));
        EXPECT_EQ(sound.played.size(), test.sounds);
        EXPECT_EQ(alerts.shown.size(), test.notifications);
        app->terminate();
        app.reset();
        EXPECT_FALSE(power.isWatched());
    }
}

TEST_F(AppDelegateTest, ChargersAndLowPowerModeHaveTheirWords)
{
    launch();
    EXPECT_EQ(chargerHUD(84, true, true).title, QStringLiteral("Charging"));
    EXPECT_EQ(chargerHUD(100, false, true).title, QStringLiteral("Plugged In"));
    lowPowerMode.set(true);
    lowPowerMode.set(false);
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown[0].title, QStringLiteral("Low Power Mode On"));
    EXPECT_TRUE(alerts.shown[1].playsSound);
    EXPECT_NE(alerts.shown[1].identifier, alerts.shown[0].identifier);
}

TEST_F(AppDelegateTest, TheLoadIsSampledWhileTheSettingIsOn)
{
    host.physical = 1ULL << 34;
    host.used = 1ULL << 33;
    launch(3s);
    const auto published = [this] {
        return state.values.value(QStringLiteral("SystemStats")).toMap();
    };
    runLoop.advance(4s);
    EXPECT_EQ(published().value(QStringLiteral("memoryUsage")), 50.0);
    EXPECT_EQ(published().value(QStringLiteral("memoryTotalGB")), 16.0);
    app->settings().showSystemMonitor.set(false);
    host.used = 1ULL << 32;
    runLoop.advance(10s);
    EXPECT_TRUE(published().isEmpty()) << "what was is not what is";
    app->settings().showSystemMonitor.set(true);
    runLoop.advance(4s);
    EXPECT_EQ(published().value(QStringLiteral("memoryUsage")), 25.0);
}

TEST_F(AppDelegateTest, MessagesAndMailAreShownAsFarAsTheyAreWanted)
{
    launch();
    const ParsedNotification chat{.appID = QStringLiteral("com.slack.Slack"),
                                  .title = QStringLiteral("Ada"),
                                  .body = QStringLiteral("Six?"),
                                  .uuid = QStringLiteral("1")};
    notificationFeed.listeners.notify(chat);
    newMailSignal.listeners.notify(QStringLiteral("Ada <a@b>"), QStringLiteral("Lunch?"));
    EXPECT_FALSE(showsHUD()) << "both are off";

    app->settings().showSlackHUD.set(true);
    runLoop.settle();
    EXPECT_EQ(icons.wanted, QStringList(QStringLiteral("com.tinyspeck.slackmacgap")))
        << "before it is needed";
    notificationFeed.listeners.notify(chat);
    EXPECT_FALSE(app->hudManager().currentHUD()->artworkImage);
    icons.image = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(state.hud().value(QStringLiteral("title")), QStringLiteral("Ada"));
    EXPECT_EQ(state.hud().value(QStringLiteral("type")), QStringLiteral("notification"));
    app->settings().showEmailHUD.set(true);
    newMailSignal.listeners.notify(QStringLiteral("Ada <a@b>"), QStringLiteral("Lunch?"));
    EXPECT_EQ(state.hud().value(QStringLiteral("title")), QStringLiteral("Lunch?"));
    EXPECT_EQ(state.hud().value(QStringLiteral("subtitle")), QStringLiteral("Ada"));
    EXPECT_EQ(app->hudManager().currentHUD()->artworkImage, icons.image);
    EXPECT_EQ(app->hudManager().hudQueue().size(), 2);
    app->terminate();
    EXPECT_TRUE(notificationFeed.listeners.isEmpty());
}

TEST_F(AppDelegateTest, WhatPlaysIsPublishedAndTakesCommands)
{
    mediaRemote.info = {{mediaInfo::title, QStringLiteral("A Song")},
                        {mediaInfo::duration, 200.0},
                        {mediaInfo::elapsedTime, 50.0},
                        {mediaInfo::playbackRate, 1.0}};
    launch(900ms);
    mediaRemote.answer();
    const auto track = [this] { return state.values.value(QStringLiteral("NowPlaying")).toMap(); };
    EXPECT_EQ(track().value(QStringLiteral("title")), QStringLiteral("A Song"));
    EXPECT_EQ(track().value(QStringLiteral("isPlaying")), true);

    const auto act = [this](const char *action) {
        return remote.requests.activateAction(QString::fromLatin1(action), {});
    };
    EXPECT_TRUE(act("next-track") && act("previous-track") && act("play-pause"));
    EXPECT_EQ(mediaRemote.commands, (std::vector{4, 5, 2}));
    EXPECT_EQ(track().value(QStringLiteral("isPlaying")), false); // before the player says so
    EXPECT_EQ(track().value(QStringLiteral("mediaElapsed")), QStringLiteral("0:50"));
    app->appDelegate().media()->seek(0.25);
    EXPECT_EQ(mediaRemote.positions, std::vector{50.0});

    const int queries = mediaRemote.queries;
    EXPECT_TRUE(act("refresh-now-playing"));
    EXPECT_EQ(mediaRemote.queries, queries + 1);
    app->terminate();
    runLoop.advance(10s);
    EXPECT_EQ(mediaRemote.queries, queries + 1);
}

TEST_F(AppDelegateTest, TheAssistantIsFollowedWhileTheSettingIsOn)
{
    ASSERT_TRUE(QDir(library.path()).mkpath(QStringLiteral(".claude/bin")));
    const auto inHome = [this](const char *path) { return library.filePath(QLatin1String(path)); };
    ASSERT_TRUE(QFile(inHome(".claude/bin/claude")).open(QIODevice::WriteOnly));
    const auto status = [this] {
        return state.values.value(QStringLiteral("ClaudeCode"))
            .toMap()
            .value(QStringLiteral("status"));
    };
    launch();
    EXPECT_TRUE(socket.path.isEmpty());
    EXPECT_FALSE(QFile::exists(inHome(".claude/settings.json")));

    app->settings().enableClaudeCode.set(true);
    runLoop.settle();
    EXPECT_EQ(socket.path, QStringLiteral("/tmp/quillmere-claude.sock"));
    EXPECT_TRUE(QFile::exists(inHome(".claude/hooks/quillmere-hook.sh")));
    socket.send(R"({"session_id":"1","cwd":"/x","event":"PreCompact","status":"compacting"})");
    runLoop.settle();
    EXPECT_EQ(status(), QStringLiteral("compacting"));

    app->settings().enableClaudeCode.set(false);
    runLoop.settle();
    EXPECT_EQ(status(), QStringLiteral("idle"));
    EXPECT_TRUE(socket.path.isEmpty());
    EXPECT_FALSE(QFile::exists(inHome(".claude/hooks/quillmere-hook.sh")));

    app->settings().enableClaudeCode.set(true);
    runLoop.settle();
    app->terminate();
    EXPECT_TRUE(socket.path.isEmpty());
    EXPECT_TRUE(QFile::exists(inHome(".claude/hooks/quillmere-hook.sh"))); // stays for next time
}

TEST_F(AppDelegateTest, EachGateSilencesTheVolumeHUDWithoutARestart)
{
    launch();
    for (const auto &key : {QStringLiteral("showVolumeHUD"), QStringLiteral("soundHUDsEnabled")}) {
        defaults.changeFromOutside(key, false);
        setVolume(0.2F);
        EXPECT_FALSE(showsHUD()) << key.toStdString();
        defaults.changeFromOutside(key, true);
        setVolume(0.3F);
        EXPECT_TRUE(showsHUD()) << key.toStdString();
        runLoop.advance(2s);
    }
    window.setCovered(true);
    defaults.changeFromOutside(QStringLiteral("disableInFullscreen"), true);
    setVolume(0.6F);
    EXPECT_FALSE(showsHUD());
}

TEST_F(AppDelegateTest, NothingShowsInTheFirstThreeSeconds)
{
    launch(2900ms);
    setVolume(0.4F);
    EXPECT_FALSE(showsHUD());
    runLoop.advance(100ms);
    setVolume(0.5F);
    EXPECT_TRUE(showsHUD());
}

TEST_F(AppDelegateTest, TheSoundServerMayComeLateAndComeBack)
{
    audio.setAvailable(false);
    launch();
    setVolume(0.1F);
    EXPECT_FALSE(showsHUD()) << "nothing starts from an invented level";
    for (const float level : {0.2F, 0.3F}) {
        audio.setAvailable(true);
        runLoop.advance(2s);
        EXPECT_FALSE(showsHUD()) << "a server that comes is no volume change";
        setVolume(level);
        EXPECT_TRUE(showsHUD());
        audio.setAvailable(false);
        runLoop.advance(2s);
    }
}

TEST_F(AppDelegateTest, ScrollingOverTheCollapsedIslandChangesTheVolumeAndShowsIt)
{
    launch();
    FloatingPanel &panel = *app->appDelegate().floatingPanel();
    defaults.changeFromOutside(QStringLiteral("volumeScrollEnabled"), false);
    panel.scrollWheel({.deltaY = 10});
    EXPECT_TRUE(audio.writes().empty());
    defaults.changeFromOutside(QStringLiteral("volumeScrollEnabled"), true);
    panel.scrollWheel({.deltaY = 10});
    ASSERT_EQ(audio.writes().size(), 1U);
    EXPECT_GT(audio.writes().front().level, 0.5F);
    EXPECT_TRUE(showsHUD());
}

TEST_F(AppDelegateTest, SettingsOnTheLivePanelAndScreenChangesReachIt)
{
    launch();
    auto &settings = app->settings();
    settings.hideInMissionControl.set(true);
    EXPECT_TRUE(window.behavior.testFlag(CollectionBehavior::Transient));
    settings.hideFromScreenCapture.set(true);
    EXPECT_EQ(window.sharing, SharingType::None);
    settings.hideFromScreenCapture.set(false);
    EXPECT_EQ(window.sharing, SharingType::ReadOnly);
    screens.list = {FakeScreens::plain(QStringLiteral("B"), QRectF(1000, 100, 2000, 1000))};
    screens.changed();
    EXPECT_EQ(window.frame, QRectF(1937, 100, 126, 32));
}

TEST_F(AppDelegateTest, AnIslandOnACameraHousingShowsHUDsBelowIt)
{
    screens.list = {
        FakeScreens::notched(QStringLiteral("eDP-1"), QRectF(0, 0, 1512, 982), 32, 656, 856)};
    launch();
    EXPECT_EQ(window.frame, QRectF(656, 0, 200, 32));
    setVolume(0.4F);
    EXPECT_EQ(window.frame.size(), QSizeF(300, 44 + 32));
}

TEST_F(AppDelegateTest, OtherProgramsReachTheActionsThatExist)
{
    launch();
    int taps = 0;
    const auto token =
        notifications.observe(events::islandTapped, [&](const QVariantMap &) { ++taps; });
    const auto act = [this](const char *name, const QVariantList &parameter = {}) {
        return remote.requests.activateAction(QString::fromLatin1(name), parameter);
    };
    EXPECT_TRUE(act("toggle-island"));
    EXPECT_EQ(taps, 1);
    window.takeCalls();
    EXPECT_TRUE(act("show-island"));
    remote.requests.activate();
    EXPECT_EQ(window.takeCalls(), (std::vector<std::string>{"front", "front"}));
    EXPECT_FALSE(act("no-such-action"));
    EXPECT_FALSE(act("quit", {1})) << "none takes a parameter";
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(act("quit"));
    EXPECT_EQ(terminations, 1);
}

TEST_F(AppDelegateTest, ABrightnessStepIsShownAndTheDriftGoesBy)
{
    display.level = 0.5;
    display.setAvailable(true);
    launch();
    display.level = 0.52;
    runLoop.advance(1s);
    EXPECT_FALSE(showsHUD());
    display.level = 0.6;
    runLoop.advance(300ms);
    EXPECT_EQ(state.hud().value(QStringLiteral("type")), QStringLiteral("brightness"));
    runLoop.advance(2s);
    defaults.changeFromOutside(QStringLiteral("displayHUDsEnabled"), false);
    display.level = 0.9;
    runLoop.advance(1s);
    EXPECT_FALSE(showsHUD());
}

TEST_F(AppDelegateTest, DoNotDisturbIsToldOfAndHoldsBackWhatItsSettingsSay)
{
    display.level = 0.5;
    display.setAvailable(true);
    power.set(BatteryStatus{.level = 50, .isPluggedIn = true});
    power.setAvailable(true);
    focus.set(false);
    launch();
    const auto shown = [&] {
        QString type = state.hud().value(QStringLiteral("type")).toString();
        runLoop.advance(10s);
        return type;
    };
    const auto words = [&]() -> QString {
        return state.hud().value(QStringLiteral("title")).toString() + u' ' +
               state.hud().value(QStringLiteral("subtitle")).toString();
    };
    float volume = 0.5F;
    const struct {
        const char *setting;
        const char *type;
        std::function<void()> change;
    } cases[] = {
        {"focusAllowSound", "volume", [&] { setVolume(volume = 1 - volume + 0.1F); }},
        {"focusAllowDisplay", "brightness",
         [&] {
             display.level = display.level > 0.6 ? 0.2 : 0.9;
             runLoop.advance(400ms);
         }},
        {"focusAllowBattery", "battery",
         [&] {
             power.set(BatteryStatus{.level = 50, .isPluggedIn = !power.status()->isPluggedIn});
             runLoop.settle();
         }},
    };
    defaults.changeFromOutside(QStringLiteral("showSlackHUD"), true);
    for (const auto &[setting, type, change] : cases) {
        SCOPED_TRACE(setting);
        const auto key = QString::fromLatin1(setting);
        focus.set(true);
        EXPECT_EQ(words(), QStringLiteral("Do Not Disturb On"));
        EXPECT_EQ(shown(), QStringLiteral("focus"));
        change();
        EXPECT_EQ(shown(), QString::fromLatin1(type));
        defaults.changeFromOutside(key, false);
        change();
        EXPECT_EQ(shown(), QString());
        focus.set(false);
        EXPECT_EQ(words(), QStringLiteral("Do Not Disturb Off"));
        shown();
        change();
        EXPECT_EQ(shown(), QString::fromLatin1(type));
    }
    defaults.changeFromOutside(QStringLiteral("showFocusHUD"), false);
    focus.set(true);
    EXPECT_EQ(shown(), QString());
    sendSlackMessage();
    EXPECT_EQ(shown(), QString());
    focus.set(false);
    sendSlackMessage();
    EXPECT_EQ(shown(), QStringLiteral("notification"));
}

TEST_F(AppDelegateTest, TheCalendarKeepsMessagesAndWeatherBack)
{
    defaults.values = {
        {QStringLiteral("googleAccountEmail"), QStringLiteral("ada@example.org")},
        {QStringLiteral("googleClientID"), QStringLiteral("1.apps.googleusercontent.com")},
        {QStringLiteral("disableActivityDuringEvents"), true},
        {QStringLiteral("showSlackHUD"), true},
        {QStringLiteral("expandNotchOnHover"), false}};
    keychain.secret = QStringLiteral("refresh");
    runLoop.setWallClock(std::chrono::sys_days(std::chrono::year(2026) / 5 / 1) + 12h);
    QByteArray events = R"({"start":{"dateTime":"2026-05-01T12:01:00Z"},
                            "end":{"dateTime":"2026-05-01T12:03:00Z"}})";
    bool isUp = true;
    const auto serve = [&](Duration span) {
        for (runLoop.advance(span); http.waiting() > 0; runLoop.advance(0s)) {
            const QUrl url = http.requests.at(http.requests.size() - http.waiting()).url;
            const bool isToken = url.path() == QStringLiteral("/token");
            const QByteArray body = isToken ? R"({"access_token":"at","expires_in":3600})"
                                            : QByteArray(R"({"items":[)" + events + "]}");
            http.answer(isUp ? HttpResult(HttpResponse{200, {}, body})
                             : tl::unexpected(HttpError{}));
        }
    };
    const auto shows = [&](const std::function<void()> &act) {
        act();
        const bool is = !state.hud().isEmpty();
        runLoop.advance(6s);
        return is;
    };
    const auto message = [this] { sendSlackMessage(); };
    double temperature = 10;
    const auto weather = [this, &temperature] {
        app->appDelegate().weather()->service().onWeatherUpdate({.temperature = ++temperature});
    };
    launch();
    serve(0s);
    EXPECT_TRUE(shows(message)) << "it has not begun";
    isUp = false;
    serve(60s);
    EXPECT_FALSE(shows(message)) << "an outage does not end a meeting";
    EXPECT_FALSE(shows(weather));
    EXPECT_TRUE(shows([this] { setVolume(0.7F); })) << "what the user does is answered";
    serve(110s);
    EXPECT_TRUE(shows(message)) << "it is over";

    isUp = true;
    defaults.changeFromOutside(QStringLiteral("disableWeatherOnEmptyDay"), true);
    serve(60s);
    EXPECT_TRUE(shows(weather));
    events.clear();
    serve(65s);
    EXPECT_FALSE(shows(weather));
    EXPECT_TRUE(shows(message));
    serve(24h);
    isUp = false;
    serve(24h);
    EXPECT_TRUE(shows(weather)) << "nothing is known of this day";
    const auto asked = http.requests.size();
    defaults.changeFromOutside(QStringLiteral("disableActivityDuringEvents"), false);
    defaults.changeFromOutside(QStringLiteral("disableWeatherOnEmptyDay"), false);
    runLoop.advance(10min);
    EXPECT_EQ(http.requests.size(), asked) << "nobody wants to know";
}

TEST_F(AppDelegateTest, AHeadsetIsAnnouncedOnceAndItsChargeJoinsLater)
{
    defaults.values.insert(QStringLiteral("warnOnLowBluetoothBattery"), false); // watches as well
    const auto headset = audio.add({.mainVolume = 0.5F,
                                    .facts = {.name = QStringLiteral("AirPods Pro"),
                                              .isBluetooth = true,
                                              .bluetoothAddress = QStringLiteral("AA:BB")}});
    audio.setDefault(headset); // connected before the start
    launch();
    EXPECT_FALSE(showsHUD());
    audio.setDefault(speakers);
    runLoop.advance(3s);
    audio.setDefault(headset);
    runLoop.settle();
    EXPECT_EQ(state.hud().value(QStringLiteral("title")), QStringLiteral("AirPods Pro"));
    EXPECT_EQ(state.hud().value(QStringLiteral("icon")), QStringLiteral("airpods"));
    EXPECT_FALSE(state.hud().contains(QStringLiteral("level")));
    batteries.set(QStringLiteral("AA:BB"), 83);
    EXPECT_DOUBLE_EQ(state.hud().value(QStringLiteral("level")).toDouble(), 0.83);
    EXPECT_EQ(app->hudManager().hudQueue().size(), 1);
    runLoop.advance(6s);
    EXPECT_FALSE(showsHUD());
    batteries.set(QStringLiteral("AA:BB"), 82);
    EXPECT_FALSE(showsHUD());
    EXPECT_FALSE(batteries.isWatched());
}

TEST_F(AppDelegateTest, DroppedFilesAreConfirmedAndKeptInTheTray)
{
    FileTray *tray = nullptr;
    defaults.changeFromOutside(QStringLiteral("fileTrayMaxItems"), 2);
    app.emplace(platform, library.path(), QStringLiteral("1.0"));
    app->appDelegate().onIslandCreated = [&](Island island) { tray = &island.fileTray; };
    app->launch([] {});
    runLoop.advance(4s);
    const QUrl first(QStringLiteral("file:///a"));
    const QUrl second(QStringLiteral("file:///b"));
    app->appDelegate().filesDroppedOnIsland({first});
    EXPECT_EQ(state.hud().value(QStringLiteral("title")), QStringLiteral("File Added"));
    app->appDelegate().filesDroppedOnIsland({second, QUrl(QStringLiteral("file:///c"))});
    app->appDelegate().filesDroppedOnIsland({first});
    EXPECT_EQ(tray->files(), (QList<QUrl>{first, second}));
    runLoop.advance(3s);
    EXPECT_FALSE(showsHUD());
}

TEST_F(AppDelegateTest, TheStatusMenuAndTheUpdateItFinds)
{
    qputenv("QUILLMERE_UPDATE_FEED_URL", "http://127.0.0.1:1/feed");
    launch();
    qunsetenv("QUILLMERE_UPDATE_FEED_URL");
    int settingsRequests = 0;
    const auto token = notifications.observe(events::openSettingsRequest,
                                             [&](const QVariantMap &) { ++settingsRequests; });
    const auto choose = [this](const char *title) {
        for (const auto &entry : statusItem.shown->menu) {
            if (entry.title == QString::fromUtf8(title))
                entry.action();
        }
    };
    choose("Settings…");
    EXPECT_EQ(settingsRequests, 1);
    choose("Check for Updates…");
    ASSERT_TRUE(http.answer(HttpResponse{.status = 200, .body = R"(
        <rss xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>
        <title>Two</title><link>https://example.org/2</link><s:version>2.0</s:version>
        </item></channel></rss>)"}));
    EXPECT_EQ(state.hud().value(QStringLiteral("contentURL")),
              QStringLiteral("https://example.org/2"));
    choose("Quit Quillmere");
    EXPECT_EQ(terminations, 1);
    app->terminate();
    EXPECT_FALSE(statusItem.shown);
}

TEST_F(AppDelegateTest, AfterTerminationNothingListensAnyMore)
{
    launch();
    app->terminate();
    EXPECT_FALSE(audio.hasListeners());
    setVolume(0.9F);
    EXPECT_FALSE(showsHUD());
    const QRectF before = window.frame;
    screens.list = {FakeScreens::plain(QStringLiteral("B"), QRectF(0, 500, 400, 400))};
    screens.changed();
    EXPECT_EQ(window.frame, before);
    app->terminate();
}

TEST_F(AppDelegateTest, TheDebugLogFollowsItsLocalKeysLive)
{
    const auto logged = [this] {
        app->debugLogger().drain();
        QFile file(app->debugLogger().logFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    launch();
    HUDContent track;
    track.title = QStringLiteral("Song");
    app->hudManager().updateNowPlaying(track, 1, 10);
    EXPECT_EQ(logged(), "");
    local.changeFromOutside(QStringLiteral("debugLogEnabled"), true);
    app->hudManager().updateNowPlaying(track, 1, 10);
    EXPECT_TRUE(logged().contains("[PROGRESS] [HUDManager:"));
    const auto size = logged().size();
    local.changeFromOutside(QStringLiteral("debugLogCategories"),
                            QVariantList{QStringLiteral("collapse")});
    app->hudManager().updateNowPlaying(track, 1, 10);
    EXPECT_EQ(logged().size(), size);
}

} // namespace
