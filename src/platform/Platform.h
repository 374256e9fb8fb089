#pragma once

namespace quillmere {

class Appearance;
class ApplicationIcons;
class ApplicationLauncher;
class AudioHardware;
class AudioStreams;
class BluetoothBatteries;
class CloudKeyValueStore;
class DisplayBrightness;
class DragPasteboard;
class FocusState;
class Geocoder;
class GlobalEvents;
class Haptics;
class HostStatistics;
class HttpClient;
class Keychain;
class LocationManager;
class LoginItem;
class LowPowerMode;
class MediaRemote;
class MessageSocketServer;
class NewMailSignal;
class NotificationCenter;
class NotificationDatabase;
class NotificationFeed;
class PanelWindow;
class PowerSources;
class Reachability;
class RemoteControl;
class RunLoop;
class RunningApplications;
class Screens;
class ScriptRunner;
class ShortcutPublisher;
class StatePublisher;
class StatusItem;
class SystemSound;
class UserDefaults;
class UserFiles;
class UserNotifications;
class WebAuthSession;

/// The operating system's services as the application sees them. The composition root builds them
/// and keeps them alive for longer than everything that uses them.
struct Platform {
    RunLoop &runLoop;
    NotificationCenter &notificationCenter;
    UserDefaults &userDefaults;  ///< the preferences
    UserDefaults &localDefaults; ///< what concerns this machine only and is never synced
    CloudKeyValueStore &cloudStore;
    LoginItem &loginItem;
    Screens &screens;
    PanelWindow &panelWindow;
    GlobalEvents &globalEvents;
    DragPasteboard &dragPasteboard;
    RunningApplications &runningApplications;
    AudioHardware &audioHardware;
    AudioStreams &audioStreams;
    BluetoothBatteries &bluetoothBatteries;
    DisplayBrightness &displayBrightness;
    Haptics &haptics;
    Appearance &appearance;
    StatusItem &statusItem;
    HttpClient &httpClient;
    ScriptRunner &scriptRunner;
    MediaRemote &mediaRemote;
    MessageSocketServer &messageSocketServer;
    UserFiles &userFiles; ///< those of other programs
    PowerSources &powerSources;
    LowPowerMode &lowPowerMode;
    FocusState &focusState;
    HostStatistics &hostStatistics;
    UserNotifications &userNotifications;
    SystemSound &systemSound;
    LocationManager &locationManager; ///< the machine's
    Geocoder &geocoder;
    Keychain &keychain;
    Reachability &reachability;
    NotificationDatabase &notificationDatabase;
    NotificationFeed &notificationFeed;
    NewMailSignal &newMailSignal;
    ApplicationLauncher &applicationLauncher;
    ApplicationIcons &applicationIcons;
    WebAuthSession &webAuthSession;
    StatePublisher &statePublisher;
    RemoteControl &remoteControl;
    ShortcutPublisher &shortcutPublisher;
};

} // namespace quillmere
