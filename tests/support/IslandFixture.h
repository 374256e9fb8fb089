#pragma once

#include "app/AudioOutputPicker.h"
#include "app/FileTray.h"
#include "app/SystemLoad.h"
#include "app/WeatherReports.h"
#include "claude/ClaudeCodeMonitor.h"
#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "island/IdleWings.h"
#include "island/IslandDebugLogger.h"
#include "island/IslandGestures.h"
#include "support/FakeAlerts.h"
#include "support/FakeAppearance.h"
#include "support/FakeAudioHardware.h"
#include "support/FakeGlobalEvents.h"
#include "support/FakeHaptics.h"
#include "support/FakeHostStatistics.h"
#include "support/FakeHttpClient.h"
#include "support/FakeMedia.h"
#include "support/FakeMessageSocketServer.h"
#include "support/FakePanelWindow.h"
#include "support/FakeScreens.h"
#include "support/FakeShortcutPublisher.h"
#include "support/FakeUserFiles.h"
#include "support/FakeWeather.h"
#include "support/ManualRunLoop.h"
#include "support/MemoryUserDefaults.h"
#include "support/SettingsFixture.h"
#include "tools/Timers.h"
#include "views/DashboardModel.h"
#include "views/IslandModel.h"

#include <QTemporaryDir>

namespace quillmere {

/// The island's model over the real logic, on fakes of the desktop, past the start-up in which no
/// HUD is shown.
struct IslandFixture {
    IslandFixture()
    {
        screens.list = {FakeScreens::plain(QStringLiteral("Screen"), {0, 0, 1512, 900})};
        panel.takesScroll = [this](const ScrollEvent &event) {
            return gestures.takesScroll(event);
        };
        QObject::connect(&claudeCode, &ClaudeCodeMonitor::isActiveChanged, &wings,
                         [this] { wings.setAssistantActive(claudeCode.isActive()); });
        QObject::connect(&timers.wing(), &WingTimer::contentChanged, &wings, [this] {
            const auto &content = timers.wing().content();
            wings.setTimerText(content ? content->text : QString());
        });
        QObject::connect(&timers.wing(), &WingTimer::underWayChanged, &wings,
                         [this] { content.setTimerUnderWay(timers.wing().isUnderWay()); });
        weather.isOnShow = [this] { return content.shows(IslandPage::Weather); };
        panel.displaysDidChange();
        runLoop.advance(std::chrono::seconds(4));
    }

    HUDFace face() const { return island.face(island.shownFace()); }

    QTemporaryDir dir;
    ManualRunLoop runLoop;
    SettingsFixture fixture;
    SettingsStore &settings = fixture.settings;
    FakeScreens screens;
    FakeGlobalEvents events;
    FakePanelWindow panelWindow;
    IslandDebugLogger logger{runLoop, dir.path()};
    HUDManager hud{runLoop, settings, logger};
    FloatingPanel panel{runLoop, screens, events, fixture.notifications, panelWindow, settings};
    FakeHaptics haptics;
    FakeRunningApplications applications;
    IdleWings wings{runLoop, settings, hud, applications};
    ContentView content{runLoop, settings, hud, panel, wings, fixture.notifications,
                        haptics, logger};
    IslandGestures gestures{runLoop, settings, fixture.notifications, hud, content};
    FakeAppearance appearance;
    FakeAudioHardware audio;
    AudioOutputPicker picker{audio, fixture.notifications};
    IslandModel island{hud, content, panel, settings, appearance, picker};
    FileTray tray{settings};
    FakeMessageSocketServer socket{runLoop};
    FakeUserFiles files;
    ClaudeCodeMonitor claudeCode{runLoop, logger, socket, files, {.home = dir.path()}};
    FakeLocationManager location;
    FakeGeocoder geocoder{runLoop};
    FakeKeychain keychain{runLoop};
    FakeReachability reachability;
    FakeHttpClient http;
    MemoryUserDefaults local;
    WeatherReports weather{
        {runLoop, location, geocoder, http, keychain, reachability}, local, settings, hud};
    FakeHostStatistics host;
    SystemLoad load{runLoop, host, settings, hud};
    FakeUserNotifications alerts;
    FakeSystemSound sound;
    FakeShortcutPublisher shortcuts;
    Timers timers{{runLoop, alerts, sound, fixture.notifications, shortcuts}, settings, hud};
    DashboardModel dashboard{
        runLoop,   settings, hud, content, {picker, tray, claudeCode, weather, load, timers},
        appearance};
};

} // namespace quillmere
