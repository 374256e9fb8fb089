#pragma once

#include "settings/UserDefaultsSetting.h"

#include <QObject>

#include <optional>

namespace quillmere {

class CloudKeyValueStore;
class LoginItem;
class NotificationCenter;

/// Every preference of the user, read through to the user defaults, and mirrored on request through
/// the cloud store. A setting's key is its name here. Main thread only.
///
/// The mirror is simple on purpose: at start the local values are pushed, afterwards what others
/// change is copied in. A local change reaches the others with the push of the next start.
class SettingsStore : public QObject
{
    Q_OBJECT

public:
    /// Loads, applies the login item and starts the mirror, in this order.
    SettingsStore(UserDefaults &userDefaults, CloudKeyValueStore &cloudStore, LoginItem &loginItem,
                  NotificationCenter &notificationCenter, QObject *parent = nullptr);

    /// All settings by key, for what treats them alike.
    const SettingsRegistry &registry() const { return registry_; }

    /// True only while a change from the cloud is being copied in.
    bool isSyncingFromCloud() const { return isSyncingFromCloud_; }

Q_SIGNALS:
    /// Around every change of a value, by whom ever: here, from the cloud, or by an edit of the
    /// file. For an edit of the file the new value can be read already when willChange comes.
    void willChange(const QString &key);
    void didChange(const QString &key);

private:
    // Declared before the settings, which register with it in the order of their declaration.
    SettingsRegistry registry_;

public:
    // General and island behaviour
    UserDefaultsSetting<bool> syncSettingsViaICloud{registry_, "syncSettingsViaICloud", true};
    UserDefaultsSetting<bool> hideInFullscreen{registry_, "hideInFullscreen", true};
    UserDefaultsSetting<bool> disableInFullscreen{registry_, "disableInFullscreen", false};
    UserDefaultsSetting<DisplaySelection> displaySelection{registry_, "displaySelection",
                                                           DisplaySelection::Main};
    UserDefaultsSetting<bool> idleActivityMostRecent{registry_, "idleActivityMostRecent", false};
    UserDefaultsSetting<IdleActivityType> idleActivityType{registry_, "idleActivityType",
                                                           IdleActivityType::Playing};
    UserDefaultsSetting<bool> hapticFeedback{registry_, "hapticFeedback", true};
    UserDefaultsSetting<bool> expandNotchOnHover{registry_, "expandNotchOnHover", false};
    UserDefaultsSetting<double> autoCollapseDelay{registry_, "autoCollapseDelay", 4.0}; // seconds
    UserDefaultsSetting<bool> useAccentColor{registry_, "useAccentColor", false};
    UserDefaultsSetting<bool> naturalMovement{registry_, "naturalMovement", false};
    UserDefaultsSetting<IslandAppearance> islandAppearance{registry_, "islandAppearance",
                                                           IslandAppearance::Glass};
    UserDefaultsSetting<double> glassTransparency{registry_, "glassTransparency", 0.5}; // 0..1
    UserDefaultsSetting<bool> swipeToToggleOpen{registry_, "swipeToToggleOpen", true};
    UserDefaultsSetting<bool> swipeToCycleActivity{registry_, "swipeToCycleActivity", true};
    UserDefaultsSetting<bool> swipeToDismissActivity{registry_, "swipeToDismissActivity", true};
    UserDefaultsSetting<bool> swipeToSkipMedia{registry_, "swipeToSkipMedia", true};
    UserDefaultsSetting<double> notchWidth{registry_, "notchWidth", 0.0};   // points
    UserDefaultsSetting<double> notchHeight{registry_, "notchHeight", 0.0}; // points
    UserDefaultsSetting<bool> enableDynamicColors{registry_, "enableDynamicColors", true};

    // Battery
    UserDefaultsSetting<bool> showBatteryHUD{registry_, "showBatteryHUD", true};
    UserDefaultsSetting<double> batteryHUDDuration{registry_, "batteryHUDDuration", 5.0}; // seconds
    UserDefaultsSetting<bool> notifyOnLowPowerMode{registry_, "notifyOnLowPowerMode", true};
    UserDefaultsSetting<bool> warnOnLowBattery{registry_, "warnOnLowBattery", true};
    UserDefaultsSetting<double> lowBatteryThreshold{registry_, "lowBatteryThreshold",
                                                    10.0}; // percent
    UserDefaultsSetting<bool> playSoundOnLowBattery{registry_, "playSoundOnLowBattery", true};
    UserDefaultsSetting<bool> hideBatteryLabel{registry_, "hideBatteryLabel", false};
    UserDefaultsSetting<bool> hideBatteryPercentage{registry_, "hideBatteryPercentage", false};

    // Focus
    UserDefaultsSetting<bool> showFocusHUD{registry_, "showFocusHUD", true};
    UserDefaultsSetting<double> focusHUDDuration{registry_, "focusHUDDuration", 5.0}; // seconds
    UserDefaultsSetting<bool> playSoundOnSleepFocus{registry_, "playSoundOnSleepFocus", false};
    UserDefaultsSetting<bool> hideFocusLabel{registry_, "hideFocusLabel", false};
    UserDefaultsSetting<bool> focusAllowBattery{registry_, "focusAllowBattery", true};
    UserDefaultsSetting<bool> focusAllowConnectivity{registry_, "focusAllowConnectivity", true};
    UserDefaultsSetting<bool> focusAllowDisplay{registry_, "focusAllowDisplay", true};
    UserDefaultsSetting<bool> focusAllowSound{registry_, "focusAllowSound", true};

    // Sound (volume)
    UserDefaultsSetting<bool> showVolumeHUD{registry_, "showVolumeHUD", true};
    UserDefaultsSetting<double> volumeHUDDuration{registry_, "volumeHUDDuration", 1.5}; // seconds
    UserDefaultsSetting<bool> showVolumePercentage{registry_, "showVolumePercentage", false};
    UserDefaultsSetting<SoundDisplayType> soundDisplayType{registry_, "soundDisplayType",
                                                           SoundDisplayType::Device};
    UserDefaultsSetting<bool> soundHUDsEnabled{registry_, "soundHUDsEnabled", true};
    UserDefaultsSetting<HUDColorTheme> soundHUDColorTheme{registry_, "soundHUDColorTheme",
                                                          HUDColorTheme::White};
    UserDefaultsSetting<AnimationSpeed> soundHUDAnimationSpeed{registry_, "soundHUDAnimationSpeed",
                                                               AnimationSpeed::Fast};
    UserDefaultsSetting<bool> volumeScrollEnabled{registry_, "volumeScrollEnabled", true};
    UserDefaultsSetting<bool> soundDisableOvershoot{registry_, "soundDisableOvershoot", false};
    UserDefaultsSetting<bool> soundHideLabel{registry_, "soundHideLabel", false};
    UserDefaultsSetting<SymbolSizeMode> soundSymbolSizeMode{registry_, "soundSymbolSizeMode",
                                                            SymbolSizeMode::Scale};

    // Display (brightness)
    UserDefaultsSetting<bool> showBrightnessHUD{registry_, "showBrightnessHUD", true};
    UserDefaultsSetting<double> brightnessHUDDuration{registry_, "brightnessHUDDuration",
                                                      1.5}; // seconds
    UserDefaultsSetting<bool> showBrightnessPercentage{registry_, "showBrightnessPercentage",
                                                       false};
    UserDefaultsSetting<bool> displayHUDsEnabled{registry_, "displayHUDsEnabled", true};
    UserDefaultsSetting<HUDAppearanceStyle> displayAppearanceStyle{
        registry_, "displayAppearanceStyle", HUDAppearanceStyle::White};
    UserDefaultsSetting<AnimationSpeed> displayAnimationSpeed{registry_, "displayAnimationSpeed",
                                                              AnimationSpeed::Fast};
    UserDefaultsSetting<bool> displayDisableOvershoot{registry_, "displayDisableOvershoot", false};
    UserDefaultsSetting<bool> displayHideLabel{registry_, "displayHideLabel", false};
    UserDefaultsSetting<SymbolSizeMode> displaySymbolSizeMode{registry_, "displaySymbolSizeMode",
                                                              SymbolSizeMode::Scale};

    // Email, Discord, Slack, Google
    UserDefaultsSetting<bool> showEmailHUD{registry_, "showEmailHUD", false};
    UserDefaultsSetting<double> emailHUDDuration{registry_, "emailHUDDuration", 5.0};    // seconds
    UserDefaultsSetting<double> emailPollInterval{registry_, "emailPollInterval", 60.0}; // seconds
    UserDefaultsSetting<bool> showDiscordHUD{registry_, "showDiscordHUD", false};
    UserDefaultsSetting<double> discordHUDDuration{registry_, "discordHUDDuration", 5.0}; // seconds
    UserDefaultsSetting<double> discordPollInterval{registry_, "discordPollInterval",
                                                    5.0}; // seconds
    UserDefaultsSetting<bool> showSlackHUD{registry_, "showSlackHUD", false};
    UserDefaultsSetting<double> slackHUDDuration{registry_, "slackHUDDuration", 5.0};   // seconds
    UserDefaultsSetting<double> slackPollInterval{registry_, "slackPollInterval", 5.0}; // seconds
    UserDefaultsSetting<QString> googleClientID{registry_, "googleClientID", {}};
    UserDefaultsSetting<QString> googleAccountEmail{registry_, "googleAccountEmail", {}};
    UserDefaultsSetting<bool> showGmailHUD{registry_, "showGmailHUD", false};
    UserDefaultsSetting<bool> showGoogleCalendarHUD{registry_, "showGoogleCalendarHUD", false};
    UserDefaultsSetting<double> googlePollInterval{registry_, "googlePollInterval",
                                                   60.0}; // seconds
    UserDefaultsSetting<double> googleCalendarAlertMinutes{registry_, "googleCalendarAlertMinutes",
                                                           5.0}; // minutes

    // Connectivity (Bluetooth)
    UserDefaultsSetting<bool> showBluetoothHUD{registry_, "showBluetoothHUD", true};
    UserDefaultsSetting<double> bluetoothHUDDuration{registry_, "bluetoothHUDDuration",
                                                     5.0}; // seconds
    UserDefaultsSetting<bool> warnOnLowBluetoothBattery{registry_, "warnOnLowBluetoothBattery",
                                                        true};
    UserDefaultsSetting<double> lowBluetoothBatteryThreshold{
        registry_, "lowBluetoothBatteryThreshold", 20.0}; // percent
    UserDefaultsSetting<bool> playSoundOnLowBluetoothBattery{
        registry_, "playSoundOnLowBluetoothBattery", true};
    UserDefaultsSetting<bool> connectivityUse3DModels{registry_, "connectivityUse3DModels", true};

    // Now playing
    UserDefaultsSetting<bool> showMediaHUD{registry_, "showMediaHUD", true};
    UserDefaultsSetting<double> nowPlayingIdleDuration{registry_, "nowPlayingIdleDuration",
                                                       3.0}; // seconds
    UserDefaultsSetting<WaveformStyle> expandedWaveformStyle{registry_, "expandedWaveformStyle",
                                                             WaveformStyle::Gradient};
    UserDefaultsSetting<bool> disableCompactWaveform{registry_, "disableCompactWaveform", false};
    UserDefaultsSetting<WaveformStyle> compactWaveformStyle{registry_, "compactWaveformStyle",
                                                            WaveformStyle::Monochrome};
    UserDefaultsSetting<bool> disableArtworkFlip{registry_, "disableArtworkFlip", false};
    UserDefaultsSetting<bool> hideWhileSourceAppActive{registry_, "hideWhileSourceAppActive",
                                                       false};
    UserDefaultsSetting<bool> hideMediaTitleExtras{registry_, "hideMediaTitleExtras", false};
    UserDefaultsSetting<MediaControlButton> mediaControlButton{registry_, "mediaControlButton",
                                                               MediaControlButton::Shuffle};
    UserDefaultsSetting<bool> nowPlayingSourceAutomatic{registry_, "nowPlayingSourceAutomatic",
                                                        true};

    // Calendar
    UserDefaultsSetting<bool> showCalendarHUD{registry_, "showCalendarHUD", true};
    UserDefaultsSetting<CalendarProvider> calendarProvider{registry_, "calendarProvider",
                                                           CalendarProvider::Apple};
    UserDefaultsSetting<double> timeBeforeCalendarEvent{registry_, "timeBeforeCalendarEvent",
                                                        15.0}; // minutes
    UserDefaultsSetting<bool> useCalendarColor{registry_, "useCalendarColor", false};
    UserDefaultsSetting<bool> playSoundOnCalendarEvent{registry_, "playSoundOnCalendarEvent", true};
    UserDefaultsSetting<bool> playHourlyChime{registry_, "playHourlyChime", false};
    UserDefaultsSetting<bool> disableActivityDuringEvents{registry_, "disableActivityDuringEvents",
                                                          false};
    UserDefaultsSetting<bool> disableWeatherOnEmptyDay{registry_, "disableWeatherOnEmptyDay",
                                                       false};
    UserDefaultsSetting<bool> alwaysShowMonthView{registry_, "alwaysShowMonthView", false};
    UserDefaultsSetting<bool> notifyWhenTimeToLeave{registry_, "notifyWhenTimeToLeave", false};

    // File tray, weather, lock screen
    UserDefaultsSetting<bool> showFileTray{registry_, "showFileTray", false};
    UserDefaultsSetting<qint64> fileTrayMaxItems{registry_, "fileTrayMaxItems", 5};
    UserDefaultsSetting<bool> showWeatherHUD{registry_, "showWeatherHUD", true};
    UserDefaultsSetting<bool> weatherUseFahrenheit{registry_, "weatherUseFahrenheit", false};
    UserDefaultsSetting<bool> showLockScreenHUD{registry_, "showLockScreenHUD", true};
    UserDefaultsSetting<LockScreenStyle> lockScreenStyle{registry_, "lockScreenStyle",
                                                         LockScreenStyle::Glass};
    UserDefaultsSetting<bool> lockScreenUseClearArtwork{registry_, "lockScreenUseClearArtwork",
                                                        false};
    UserDefaultsSetting<double> lockScreenIdleDuration{registry_, "lockScreenIdleDuration",
                                                       10.0}; // seconds
    UserDefaultsSetting<bool> lockScreenShowVolumeControl{registry_, "lockScreenShowVolumeControl",
                                                          false};
    UserDefaultsSetting<double> lockScreenOffsetTuning{registry_, "lockScreenOffsetTuning", 0.0};
    UserDefaultsSetting<bool> lockScreenWeather{registry_, "lockScreenWeather", false};
    UserDefaultsSetting<double> lockScreenKeepAwake{registry_, "lockScreenKeepAwake", 0.0};
    UserDefaultsSetting<bool> lockScreenShowOnScreenSaver{registry_, "lockScreenShowOnScreenSaver",
                                                          false};
    UserDefaultsSetting<bool> lockScreenPlaySoundOnLock{registry_, "lockScreenPlaySoundOnLock",
                                                        false};
    UserDefaultsSetting<bool> lockScreenPlaySoundOnUnlock{registry_, "lockScreenPlaySoundOnUnlock",
                                                          true};
    UserDefaultsSetting<bool> lockScreenAllowBattery{registry_, "lockScreenAllowBattery", true};
    UserDefaultsSetting<bool> lockScreenAllowConnectivity{registry_, "lockScreenAllowConnectivity",
                                                          true};
    UserDefaultsSetting<bool> lockScreenAllowFocus{registry_, "lockScreenAllowFocus", true};
    UserDefaultsSetting<bool> lockScreenAllowCalendar{registry_, "lockScreenAllowCalendar", false};
    UserDefaultsSetting<bool> lockScreenAllowNowPlaying{registry_, "lockScreenAllowNowPlaying",
                                                        true};

    // Tools (feature switches)
    UserDefaultsSetting<bool> enablePomodoro{registry_, "enablePomodoro", false};
    UserDefaultsSetting<bool> enableCameraMirror{registry_, "enableCameraMirror", false};
    UserDefaultsSetting<bool> enableAppShortcuts{registry_, "enableAppShortcuts", false};
    UserDefaultsSetting<bool> enableQuickNotes{registry_, "enableQuickNotes", false};
    UserDefaultsSetting<bool> enableBookmarks{registry_, "enableBookmarks", false};
    UserDefaultsSetting<bool> enableCountdownTimer{registry_, "enableCountdownTimer", false};
    UserDefaultsSetting<bool> enableReminders{registry_, "enableReminders", false};

    UserDefaultsSetting<bool> hasCompletedOnboarding{registry_, "hasCompletedOnboarding", false};

private:
    void applyLoginItem();
    void startCloudSync();
    void pushToCloud();
    void cloudDidChange(const std::optional<QStringList> &changedKeys);
    void copyFromCloud(const QString &key);
    void userDefaultsDidChange(const QStringList &keys);

    UserDefaults &userDefaults_;
    CloudKeyValueStore &cloudStore_;
    LoginItem &loginItem_;
    NotificationCenter &notificationCenter_;
    Task userDefaultsObserver_;
    Task iCloudObserver_;
    bool isSyncingFromCloud_ = false;

public:
    // Loaded once
    LoadedSetting<bool> launchAtLogin{registry_, "launchAtLogin", false};
    LoadedSetting<bool> hideInMissionControl{registry_, "hideInMissionControl", false};
    LoadedSetting<bool> hideFromScreenCapture{registry_, "hideFromScreenCapture", false};
    LoadedSetting<bool> enableClipboardHistory{registry_, "enableClipboardHistory", false};
    LoadedSetting<double> pomodoroWorkMinutes{registry_, "pomodoroWorkMinutes", 25.0}; // minutes
    LoadedSetting<double> pomodoroShortBreakMinutes{registry_, "pomodoroShortBreakMinutes",
                                                    5.0}; // minutes
    LoadedSetting<double> pomodoroLongBreakMinutes{registry_, "pomodoroLongBreakMinutes",
                                                   15.0}; // minutes
    LoadedSetting<bool> showNetworkSpeed{registry_, "showNetworkSpeed", false};
    LoadedSetting<bool> showSystemMonitor{registry_, "showSystemMonitor", true};
    LoadedSetting<bool> enableClaudeCode{registry_, "enableClaudeCode", false};
};

} // namespace quillmere
