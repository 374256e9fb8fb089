#pragma once

#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "support/FakeGlobalEvents.h"
#include "support/FakePanelWindow.h"
#include "support/FakeScreens.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"
#include "views/IslandModel.h"

#include <QTemporaryDir>

namespace quillmere {

/// The island's model over the real logic, on fakes of the desktop, past the start-up in which no
/// HUD is shown.
struct IslandFixture {
    IslandFixture()
    {
        screens.list = {FakeScreens::plain(QStringLiteral("Screen"), {0, 0, 1512, 900})};
        panel.displaysDidChange();
        runLoop.advance(std::chrono::seconds(4));
    }

    HUDFace face() const
    {
        return island.shownFace() == 0 ? island.firstFace() : island.secondFace();
    }

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
    ContentView content{hud, panel};
    IslandModel island{hud, content, panel, settings};
};

} // namespace quillmere
