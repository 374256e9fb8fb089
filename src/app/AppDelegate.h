#pragma once

#include "platform/Platform.h"
#include "platform/Task.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace quillmere {

class ContentView;
class FloatingPanel;
class HUDManager;
class SettingsStore;
class VolumeMonitor;

/// The start-up and shutdown spine: creates every long-lived object in a fixed order, connects the
/// monitors' callbacks to the HUD manager, follows screen changes, and takes everything down at
/// quit. Main thread only.
class AppDelegate : public QObject
{
public:
    AppDelegate(Platform &platform, SettingsStore &settings, HUDManager &hudManager);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    /// Brings the island to the front, whichever application is active.
    void showIsland();

    /// Asks the program to quit; the answer is applicationWillTerminate().
    void terminate();

    /// Null before launch and after termination.
    FloatingPanel *floatingPanel() const { return floatingPanel_.get(); }
    ContentView *contentView() const { return contentView_.get(); }

    std::function<void()> onTerminate;

    /// The island exists and can be given its content.
    std::function<void(FloatingPanel &panel, ContentView &contentView)> onIslandCreated;

private:
    void createIsland();
    void createMonitors();
    void createVolumeMonitor();
    void subscribeToSettings();
    void volumeChanged(double percent);
    void scrolledOverCollapsedIsland(double steps);

    Platform &platform_;
    SettingsStore &settings_;
    HUDManager &hudManager_;

    std::unique_ptr<FloatingPanel> floatingPanel_;
    std::unique_ptr<ContentView> contentView_;
    std::unique_ptr<VolumeMonitor> volumeMonitor_;
    Task audioAvailability_;
    Task hideFromScreenCaptureCancellable_;
    Task hideInMissionControlCancellable_;
    Task screenParametersObserver_;
};

} // namespace quillmere
