#include "app/AppDelegate.h"

#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "monitors/VolumeMonitor.h"
#include "platform/AudioHardware.h"
#include "platform/Screens.h"
#include "settings/SettingsStore.h"

namespace quillmere {

namespace {

/// Calls `apply` after every change of the setting, until the Task is gone.
template <class Setting, class Apply>
Task subscribe(SettingsStore &settings, const Setting &setting, QObject *context, Apply apply)
{
    const auto connection = QObject::connect(&settings, &SettingsStore::didChange, context,
                                             [&setting, apply](const QString &key) {
                                                 if (key == setting.key())
                                                     apply(setting.get());
                                             });
    return Task([connection] { QObject::disconnect(connection); });
}

} // namespace

AppDelegate::AppDelegate(Platform &platform, SettingsStore &settings, HUDManager &hudManager)
    : platform_(platform)
    , settings_(settings)
    , hudManager_(hudManager)
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    createIsland();
    createMonitors();
    subscribeToSettings();
    screenParametersObserver_ =
        platform_.screens.onParametersChanged([this] { floatingPanel_->displaysDidChange(); });
}

void AppDelegate::createIsland()
{
    floatingPanel_ = std::make_unique<FloatingPanel>(
        platform_.runLoop, platform_.screens, platform_.globalEvents, platform_.notificationCenter,
        platform_.panelWindow, settings_);
    floatingPanel_->onCollapsedScroll = [this](double steps) {
        scrolledOverCollapsedIsland(steps);
    };
    contentView_ = std::make_unique<ContentView>(hudManager_, *floatingPanel_);
    if (onIslandCreated)
        onIslandCreated(*floatingPanel_, *contentView_);
    floatingPanel_->displaysDidChange();
}

void AppDelegate::createMonitors()
{
    createVolumeMonitor();
}

void AppDelegate::createVolumeMonitor()
{
    volumeMonitor_ = std::make_unique<VolumeMonitor>(platform_.runLoop, platform_.audioHardware);
    volumeMonitor_->onVolumeChange = [this](double percent) { volumeChanged(percent); };
    // The sound server answers later, and may go and come back; a monitor that runs already ignores
    // a second start, and one that found no device is not retried by itself.
    audioAvailability_ = platform_.audioHardware.onAvailabilityChanged([this](bool available) {
        if (available)
            volumeMonitor_->start();
        else
            volumeMonitor_->stop();
    });
    if (platform_.audioHardware.isAvailable())
        volumeMonitor_->start();
}

void AppDelegate::subscribeToSettings()
{
    hideFromScreenCaptureCancellable_ =
        subscribe(settings_, settings_.hideFromScreenCapture, this,
                  [this](bool hide) { floatingPanel_->applyHideFromScreenCapture(hide); });
    hideInMissionControlCancellable_ =
        subscribe(settings_, settings_.hideInMissionControl, this,
                  [this](bool hide) { floatingPanel_->applyHideInMissionControl(hide); });
}

void AppDelegate::volumeChanged(double percent)
{
    if (!settings_.showVolumeHUD.get() || !settings_.soundHUDsEnabled.get() ||
        floatingPanel_->suppressesHUDs())
        return;
    hudManager_.showVolume(percent, settings_.volumeHUDDuration.get());
}

void AppDelegate::scrolledOverCollapsedIsland(double steps)
{
    if (!settings_.volumeScrollEnabled.get())
        return;
    // The monitor keeps quiet about its own change, so the new level is shown from here.
    if (const auto percent = volumeMonitor_->adjustByScroll(steps))
        volumeChanged(*percent);
}

void AppDelegate::showIsland()
{
    if (floatingPanel_)
        floatingPanel_->orderFront();
}

void AppDelegate::terminate()
{
    if (onTerminate)
        onTerminate();
}

void AppDelegate::applicationWillTerminate()
{
    screenParametersObserver_.cancel();
    audioAvailability_.cancel();
    if (volumeMonitor_)
        volumeMonitor_->stop();
    hideFromScreenCaptureCancellable_.cancel();
    hideInMissionControlCancellable_.cancel();
}

} // namespace quillmere
