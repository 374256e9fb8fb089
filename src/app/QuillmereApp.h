#pragma once

#include "app/AppDelegate.h"
#include "app/DebugLogSwitch.h"
#include "app/IslandStateFeed.h"
#include "app/RemoteActions.h"
#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "settings/SettingsStore.h"

#include <memory>

namespace quillmere {

/// The application object: owns the process-wide instances (settings, debug log, HUD manager) and
/// the delegate, in the order they depend on each other.
class QuillmereApp
{
public:
    /// `libraryDirectory` is where the log folder goes.
    QuillmereApp(Platform &platform, const QString &libraryDirectory, const QString &version);

    /// Launches the delegate. `onTerminate` is called when the user asks the program to quit.
    void launch(std::function<void()> onTerminate);

    /// Ends everything in order. Safe to call when nothing was launched, and twice.
    void terminate();

    /// To be called after a local key was written by the program itself.
    void localKeyWritten() { debugLogSwitch_.apply(); }

    SettingsStore &settings() { return settings_; }
    HUDManager &hudManager() { return hudManager_; }
    IslandDebugLogger &debugLogger() { return debugLogger_; }
    AppDelegate &appDelegate() { return appDelegate_; }

private:
    Platform &platform_;
    IslandDebugLogger debugLogger_;
    DebugLogSwitch debugLogSwitch_;
    SettingsStore settings_;
    HUDManager hudManager_;
    AppDelegate appDelegate_;
    std::unique_ptr<IslandStateFeed> stateFeed_;
    std::unique_ptr<RemoteActions> remoteActions_;
};

} // namespace quillmere
