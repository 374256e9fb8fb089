#include "app/AppDelegate.h"

#include "app/AppEvents.h"
#include "app/AudioOutputPicker.h"
#include "app/DeviceHUD.h"
#include "app/FileDragWatcher.h"
#include "app/FileDrop.h"
#include "app/FileTray.h"
#include "app/FocusAlerts.h"
#include "app/GoogleAccount.h"
#include "app/MediaPlayback.h"
#include "app/Messages.h"
#include "app/PowerAlerts.h"
#include "app/SettingSubscription.h"
#include "app/StatusMenu.h"
#include "app/SystemLoad.h"
#include "app/UpdateHUD.h"
#include "app/Updater.h"
#include "app/WeatherReports.h"
#include "claude/ClaudeCodeMonitor.h"
#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "island/IdleWings.h"
#include "island/IslandGestures.h"
#include "monitors/AudioOutputMonitor.h"
#include "monitors/BrightnessMonitor.h"
#include "monitors/VolumeMonitor.h"
#include "platform/AudioHardware.h"
#include "platform/Endpoints.h"
#include "platform/Screens.h"
#include "platform/StatusItem.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"
#include "tools/Timers.h"

#include <QDir>

namespace quillmere {

namespace {

/// A sound server that has just started offers a placeholder, then its own devices, then those that
/// connect by themselves. Where that ends is where new devices begin.
constexpr Duration soundServerSettles = std::chrono::seconds(3);

} // namespace

AppDelegate::AppDelegate(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                         IslandDebugLogger &debugLogger, QString version)
    : platform_(platform)
    , settings_(settings)
    , hudManager_(hudManager)
    , debugLogger_(debugLogger)
    , version_(std::move(version))
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    createUpdater();
    createOnboarding();
    createStatusItem();
    createPanel();
    createTools();
    createAlerts();
    presentIsland();
    createMonitors();
    createFileDragWatcher();
    subscribeToSettings();
    media_->start();
    screenParametersObserver_ =
        platform_.screens.onParametersChanged([this] { floatingPanel_->displaysDidChange(); });
}

void AppDelegate::createUpdater()
{
    updaterController_ = std::make_unique<Updater>(platform_.runLoop, platform_.httpClient,
                                                   platform_.userDefaults, platform_.localDefaults,
                                                   endpoint(EndpointName::UpdateFeed), version_);
    const auto show = [this](HUDContent hud) {
        hudManager_.show(std::move(hud), false, updateHUDDuration);
    };
    updaterController_->onUpdateFound = [this, show](const Update &update, bool wasAsked) {
        if (wasAsked || !hudsAreSuppressed()) // else the next daily check finds it again
            show(updateFoundHUD(update));
    };
    updaterController_->onUpToDate = [show] { show(upToDateHUD()); };
    updaterController_->onFailure = [show](const QString &text) { show(updateFailedHUD(text)); };
    updaterController_->startUpdater();
}

void AppDelegate::createOnboarding()
{
    const auto show = [this] {
        if (onShowOnboarding)
            onShowOnboarding();
    };
    onboardingObserver_ = platform_.notificationCenter.observe(
        events::showOnboarding, [show](const QVariantMap &) { show(); });
    if (!settings_.hasCompletedOnboarding.get())
        show();
}

void AppDelegate::createStatusItem()
{
    const StatusMenuActions actions{
        .showIsland = [this] { showIsland(); },
        .refreshNowPlaying = [this] { refreshNowPlaying(); },
        .checkForUpdates = [this] { checkForUpdates(); },
        .openSettings = [this] { platform_.notificationCenter.post(events::openSettingsRequest); },
        .quit = [this] { terminate(); }};
    platform_.statusItem.show({.symbol = QString(symbols::island),
                               .accessibilityDescription = QStringLiteral("Quillmere"),
                               .menu = statusMenu(actions),
                               .onActivate = [this] { showIsland(); }});
}

void AppDelegate::createPanel()
{
    floatingPanel_ = std::make_unique<FloatingPanel>(
        platform_.runLoop, platform_.screens, platform_.globalEvents, platform_.notificationCenter,
        platform_.panelWindow, settings_);
    floatingPanel_->onCollapsedScroll = [this](double steps) {
        scrolledOverCollapsedIsland(steps);
    };
    wings_ = std::make_unique<IdleWings>(platform_.runLoop, settings_, hudManager_,
                                         platform_.runningApplications);
    contentView_ = std::make_unique<ContentView>(
        platform_.runLoop, settings_, hudManager_, *floatingPanel_, *wings_,
        platform_.notificationCenter, platform_.haptics, debugLogger_);
    gestures_ = std::make_unique<IslandGestures>(
        platform_.runLoop, settings_, platform_.notificationCenter, hudManager_, *contentView_);
    floatingPanel_->takesScroll = [this](const ScrollEvent &event) {
        return gestures_ && gestures_->takesScroll(event);
    };
    gestures_->onSkipMedia = [this](int step) {
        if (step > 0)
            media_->nextTrack();
        else
            media_->previousTrack();
    };
}

void AppDelegate::createTools()
{
    outputPicker_ =
        std::make_unique<AudioOutputPicker>(platform_.audioHardware, platform_.notificationCenter);
    fileTray_ = std::make_unique<FileTray>(settings_);
    media_ = std::make_unique<MediaPlayback>(platform_, settings_, hudManager_, debugLogger_);
    claudeCode_ = std::make_unique<ClaudeCodeMonitor>(
        platform_.runLoop, debugLogger_, platform_.messageSocketServer, platform_.userFiles,
        ClaudeCodeMonitor::Places{.home = QDir::homePath()});
    connect(claudeCode_.get(), &ClaudeCodeMonitor::isActiveChanged, this,
            [this] { wings_->setAssistantActive(claudeCode_->isActive()); });
    timers_ =
        std::make_unique<Timers>(TimerServices{.runLoop = platform_.runLoop,
                                               .userNotifications = platform_.userNotifications,
                                               .systemSound = platform_.systemSound,
                                               .notificationCenter = platform_.notificationCenter,
                                               .shortcutPublisher = platform_.shortcutPublisher},
                                 settings_, hudManager_);
    timers_->isSuppressed = [this] { return hudsAreSuppressed(); };
    const auto showTimer = [this] {
        const auto &content = timers_->wing().content();
        wings_->setTimerText(content ? content->text : QString());
    };
    connect(&timers_->wing(), &WingTimer::contentChanged, this, showTimer);
    connect(&timers_->wing(), &WingTimer::underWayChanged, this,
            [this] { contentView_->setTimerUnderWay(timers_->wing().isUnderWay()); });
    timers_->setOnShow([this] { showIsland(); });
    systemLoad_ = std::make_unique<SystemLoad>(platform_.runLoop, platform_.hostStatistics,
                                               settings_, hudManager_);
}

void AppDelegate::createAlerts()
{
    const auto isHeldBack = [this](HUDContent::HUDType type) { return isSuppressed(type); };
    focusAlerts_ =
        std::make_unique<FocusAlerts>(platform_.focusState, settings_, hudManager_, isHeldBack);
    powerAlerts_ = std::make_unique<PowerAlerts>(platform_, settings_, hudManager_, isHeldBack);
    messages_ =
        std::make_unique<Messages>(platform_, settings_, hudManager_, QDir::homePath(), isHeldBack);
    google_ = std::make_unique<GoogleAccount>(platform_, settings_, hudManager_, isHeldBack);
    weather_ =
        std::make_unique<WeatherReports>(WeatherTools{.runLoop = platform_.runLoop,
                                                      .locationManager = platform_.locationManager,
                                                      .geocoder = platform_.geocoder,
                                                      .httpClient = platform_.httpClient,
                                                      .keychain = platform_.keychain,
                                                      .reachability = platform_.reachability},
                                         platform_.localDefaults, settings_, hudManager_);
    weather_->isSuppressed = [this] { return isSuppressed(HUDContent::HUDType::Weather); };
    weather_->isOnShow = [this] { return contentView_->shows(IslandPage::Weather); };
}

void AppDelegate::presentIsland()
{
    if (onIslandCreated)
        onIslandCreated({*floatingPanel_, *contentView_, *outputPicker_, *fileTray_, *media_,
                         *claudeCode_, *weather_, *systemLoad_, *timers_});
    floatingPanel_->displaysDidChange();
}

void AppDelegate::createMonitors()
{
    createVolumeMonitor();
    createBrightnessMonitor();
    powerAlerts_->start();
    focusAlerts_->start();
    weather_->start();
    createAudioOutputMonitor();
    messages_->startMail();
    messages_->startNotifications();
    google_->start();
    startClaudeCode();
    systemLoad_->start();
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

void AppDelegate::createBrightnessMonitor()
{
    brightnessMonitor_ =
        std::make_unique<BrightnessMonitor>(platform_.runLoop, platform_.displayBrightness);
    // The drift of automatic brightness goes by without a HUD.
    brightnessMonitor_->onBrightnessChange = [this](double percent) { brightnessChanged(percent); };
    brightnessMonitor_->start();
}

void AppDelegate::createAudioOutputMonitor()
{
    deviceHUD_ = std::make_unique<DeviceHUD>(settings_, hudManager_, platform_.audioHardware,
                                             platform_.bluetoothBatteries);
    outputAvailability_ = platform_.audioHardware.onAvailabilityChanged(
        [this](bool available) { soundServerChanged(available); });
    soundServerChanged(platform_.audioHardware.isAvailable());
}

void AppDelegate::soundServerChanged(bool available)
{
    if (!available) {
        outputSettling_.cancel();
        audioOutputMonitor_.reset();
        return;
    }
    if (outputSettling_) // set for the whole life of a connection
        return;
    outputSettling_ = platform_.runLoop.after(soundServerSettles, [this] {
        audioOutputMonitor_ =
            std::make_unique<AudioOutputMonitor>(platform_.runLoop, platform_.audioHardware);
        audioOutputMonitor_->onBluetoothDeviceConnected = [this](const QString &name,
                                                                 bool isAirPods) {
            bluetoothDeviceConnected(name, isAirPods);
        };
        audioOutputMonitor_->start();
    });
}

void AppDelegate::startClaudeCode()
{
    if (settings_.enableClaudeCode.get())
        claudeCode_->start();
}

void AppDelegate::createFileDragWatcher()
{
    fileDragWatcher_ = std::make_unique<FileDragWatcher>(platform_.runLoop, platform_.globalEvents,
                                                         platform_.dragPasteboard,
                                                         platform_.notificationCenter, settings_);
    fileDroppedObserver_ = platform_.notificationCenter.observe(
        events::fileDropped,
        [this](const QVariantMap &userInfo) { fileDropped(droppedFiles(userInfo)); });
    fileDragWatcher_->start();
}

void AppDelegate::subscribeToSettings()
{
    hideFromScreenCaptureCancellable_ =
        subscribe(settings_, settings_.hideFromScreenCapture, this,
                  [this](bool hide) { floatingPanel_->applyHideFromScreenCapture(hide); });
    hideInMissionControlCancellable_ =
        subscribe(settings_, settings_.hideInMissionControl, this,
                  [this](bool hide) { floatingPanel_->applyHideInMissionControl(hide); });
    enableClaudeCodeCancellable_ =
        subscribe(settings_, settings_.enableClaudeCode, this, [this](bool enabled) {
            if (enabled)
                return claudeCode_->start();
            claudeCode_->uninstallHooks();
            claudeCode_->stop();
        });
}

void AppDelegate::volumeChanged(double percent)
{
    if (!settings_.showVolumeHUD.get() || !settings_.soundHUDsEnabled.get() ||
        isSuppressed(HUDContent::HUDType::Volume))
        return;
    hudManager_.showVolume(percent, settings_.volumeHUDDuration.get());
}

void AppDelegate::brightnessChanged(double percent)
{
    if (!settings_.showBrightnessHUD.get() || !settings_.displayHUDsEnabled.get() ||
        isSuppressed(HUDContent::HUDType::Brightness))
        return;
    hudManager_.showBrightness(percent, settings_.brightnessHUDDuration.get());
}

void AppDelegate::bluetoothDeviceConnected(const QString &name, bool isAirPods)
{
    if (settings_.showBluetoothHUD.get() && !isSuppressed(HUDContent::HUDType::Bluetooth))
        deviceHUD_->show(name, isAirPods);
}

void AppDelegate::fileDropped(const QList<QUrl> &files)
{
    fileTray_->add(files);
    hudManager_.show(fileAddedHUD(files), false, fileAddedDuration);
}

bool AppDelegate::hudsAreSuppressed() const
{
    return floatingPanel_->suppressesHUDs();
}

bool AppDelegate::isSuppressed(HUDContent::HUDType type) const
{
    return hudsAreSuppressed() || !focusAlerts_->allows(type) || !google_->allows(type);
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

void AppDelegate::checkForUpdates()
{
    if (updaterController_)
        updaterController_->checkForUpdates();
}

void AppDelegate::refreshNowPlaying()
{
    if (media_)
        media_->refresh();
}

void AppDelegate::islandDragChanged(bool over)
{
    if (fileDragWatcher_)
        fileDragWatcher_->islandDragChanged(over);
}

void AppDelegate::filesDroppedOnIsland(const QList<QUrl> &files)
{
    platform_.notificationCenter.post(events::fileDropped, fileDropInfo(files));
}

void AppDelegate::terminate()
{
    if (onTerminate)
        onTerminate();
}

void AppDelegate::applicationWillTerminate()
{
    if (fileDragWatcher_)
        fileDragWatcher_->stop();
    screenParametersObserver_.cancel();
    fileDroppedObserver_.cancel();
    onboardingObserver_.cancel();
    gestures_.reset();
    audioAvailability_.cancel();
    if (volumeMonitor_)
        volumeMonitor_->stop();
    if (brightnessMonitor_)
        brightnessMonitor_->stop();
    if (powerAlerts_)
        powerAlerts_->stop();
    if (focusAlerts_)
        focusAlerts_->stop();
    if (weather_)
        weather_->stop();
    if (outputPicker_)
        outputPicker_->stop();
    outputAvailability_.cancel();
    soundServerChanged(false);
    if (messages_)
        messages_->stop();
    if (google_)
        google_->stop();
    if (claudeCode_)
        claudeCode_->stop();
    if (systemLoad_)
        systemLoad_->stop();
    if (media_)
        media_->stop();
    if (timers_)
        timers_->stop();
    hideFromScreenCaptureCancellable_.cancel();
    hideInMissionControlCancellable_.cancel();
    enableClaudeCodeCancellable_.cancel();
    updaterController_.reset();
    platform_.statusItem.remove();
}

} // namespace quillmere
