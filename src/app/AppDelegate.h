#pragma once

#include "island/HUDContent.h"
#include "platform/Platform.h"
#include "platform/Task.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace quillmere {

class AudioOutputMonitor;
class AudioOutputPicker;
class BrightnessMonitor;
class ClaudeCodeMonitor;
class ContentView;
class DeviceHUD;
class FileDragWatcher;
class FileTray;
class FloatingPanel;
class FocusAlerts;
class GoogleAccount;
class HUDManager;
class IdleWings;
class IslandDebugLogger;
class IslandGestures;
class MediaPlayback;
class Messages;
class PowerAlerts;
class SettingsStore;
class SystemLoad;
class Timers;
class Updater;
class VolumeMonitor;
class WeatherReports;

/// The island and what it shows, for the views.
struct Island {
    FloatingPanel &panel;
    ContentView &contentView;
    AudioOutputPicker &outputPicker;
    FileTray &fileTray;
    MediaPlayback &media;
    ClaudeCodeMonitor &claudeCode;
    WeatherReports &weather;
    SystemLoad &systemLoad;
    Timers &timers;
};

/// The start-up and shutdown spine: creates every long-lived object in a fixed order, connects the
/// monitors' callbacks to the HUD manager, follows screen changes, and takes everything down at
/// quit. Main thread only.
class AppDelegate : public QObject
{
public:
    AppDelegate(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                IslandDebugLogger &debugLogger, QString version);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    /// Brings the island to the front, whichever application is active.
    void showIsland();

    /// Looks for a newer version now and shows the outcome.
    void checkForUpdates();

    /// Asks the players now, without waiting for the next second.
    void refreshNowPlaying();

    /// What a drag over the island itself does; a drop posts "QuillmereFileDropped".
    void islandDragChanged(bool over);
    void filesDroppedOnIsland(const QList<QUrl> &files);

    /// Asks the program to quit; the answer is applicationWillTerminate().
    void terminate();

    /// Null before launch.
    AudioOutputPicker *outputPicker() const { return outputPicker_.get(); }
    MediaPlayback *media() const { return media_.get(); }
    ClaudeCodeMonitor *claudeCode() const { return claudeCode_.get(); }
    Messages *messages() const { return messages_.get(); }
    WeatherReports *weather() const { return weather_.get(); }
    Timers *timers() const { return timers_.get(); }
    GoogleAccount *google() const { return google_.get(); }
    FloatingPanel *floatingPanel() const { return floatingPanel_.get(); }
    ContentView *contentView() const { return contentView_.get(); }

    std::function<void()> onTerminate;

    /// The setup window is to be shown: at the first launch, and whenever somebody asks for it.
    std::function<void()> onShowOnboarding;

    /// The island exists and can be given its content.
    std::function<void(Island island)> onIslandCreated;

private:
    void createUpdater();
    void createOnboarding();
    void createStatusItem();
    void createPanel();
    void createTools();
    void createAlerts();
    void presentIsland();
    void createMonitors();
    void createVolumeMonitor();
    void createBrightnessMonitor();
    void createAudioOutputMonitor();
    void startClaudeCode();
    void createFileDragWatcher();
    void subscribeToSettings();
    void volumeChanged(double percent);
    void brightnessChanged(double percent);
    void soundServerChanged(bool available);
    void bluetoothDeviceConnected(const QString &name, bool isAirPods);
    void fileDropped(const QList<QUrl> &files);
    bool hudsAreSuppressed() const;
    bool isSuppressed(HUDContent::HUDType type) const;
    void scrolledOverCollapsedIsland(double steps);

    Platform &platform_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    IslandDebugLogger &debugLogger_;
    const QString version_;

    std::unique_ptr<FloatingPanel> floatingPanel_;
    std::unique_ptr<IdleWings> wings_;
    std::unique_ptr<ContentView> contentView_;
    std::unique_ptr<IslandGestures> gestures_;
    std::unique_ptr<AudioOutputPicker> outputPicker_;
    std::unique_ptr<FileTray> fileTray_;
    std::unique_ptr<FileDragWatcher> fileDragWatcher_;
    std::unique_ptr<VolumeMonitor> volumeMonitor_;
    std::unique_ptr<BrightnessMonitor> brightnessMonitor_;
    std::unique_ptr<AudioOutputMonitor> audioOutputMonitor_;
    std::unique_ptr<DeviceHUD> deviceHUD_;
    std::unique_ptr<MediaPlayback> media_;
    std::unique_ptr<ClaudeCodeMonitor> claudeCode_;
    std::unique_ptr<Timers> timers_;
    std::unique_ptr<Messages> messages_;
    std::unique_ptr<FocusAlerts> focusAlerts_;
    std::unique_ptr<GoogleAccount> google_;
    std::unique_ptr<PowerAlerts> powerAlerts_;
    std::unique_ptr<WeatherReports> weather_;
    std::unique_ptr<SystemLoad> systemLoad_;
    std::unique_ptr<Updater> updaterController_;
    Task onboardingObserver_;
    Task audioAvailability_;
    Task outputAvailability_;
    Task outputSettling_;
    Task fileDroppedObserver_;
    Task hideFromScreenCaptureCancellable_;
    Task hideInMissionControlCancellable_;
    Task enableClaudeCodeCancellable_;
    Task screenParametersObserver_;
};

} // namespace quillmere
