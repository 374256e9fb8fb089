#pragma once

namespace quillmere {

class AudioHardware;
class CloudKeyValueStore;
class GlobalEvents;
class LoginItem;
class NotificationCenter;
class PanelWindow;
class RemoteControl;
class RunLoop;
class Screens;
class StatePublisher;
class UserDefaults;

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
    AudioHardware &audioHardware;
    StatePublisher &statePublisher;
    RemoteControl &remoteControl;
};

} // namespace quillmere
