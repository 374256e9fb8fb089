#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/linux/WindowSystem.h"
#include "platform/linux/alerts/CanberraSound.h"
#include "platform/linux/alerts/DesktopNotifications.h"
#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/appearance/FeedbackdHaptics.h"
#include "platform/linux/audio/PulseAudioHardware.h"
#include "platform/linux/audio/PulseAudioStreams.h"
#include "platform/linux/bluetooth/BusBluetoothBatteries.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/BrowserAuthSession.h"
#include "platform/linux/desktop/DesktopIcons.h"
#include "platform/linux/desktop/DesktopLauncher.h"
#include "platform/linux/desktop/FileUserDefaults.h"
#include "platform/linux/desktop/FolderCloudStore.h"
#include "platform/linux/desktop/LinuxUserFiles.h"
#include "platform/linux/display/LinuxDisplayBrightness.h"
#include "platform/linux/focus/DesktopFocus.h"
#include "platform/linux/keyring/SecretKeychain.h"
#include "platform/linux/location/GeoClueLocationManager.h"
#include "platform/linux/location/HelperGeocoder.h"
#include "platform/linux/media/MprisMediaRemote.h"
#include "platform/linux/net/QtHttpClient.h"
#include "platform/linux/net/RouteReachability.h"
#include "platform/linux/notifications/BusNotificationFeed.h"
#include "platform/linux/notifications/EvolutionMail.h"
#include "platform/linux/notifications/SqliteNotificationDatabase.h"
#include "platform/linux/power/PowerProfiles.h"
#include "platform/linux/power/UPowerSources.h"
#include "platform/linux/scripts/ProcessScriptRunner.h"
#include "platform/linux/shortcuts/PortalGlobalShortcuts.h"
#include "platform/linux/sockets/UnixMessageServer.h"
#include "platform/linux/stats/ProcStatistics.h"
#include "platform/linux/tray/TrayStatusItem.h"

namespace quillmere {

class DBusService;

/// The Linux implementation of every system service. Needs the QGuiApplication; connects to nothing
/// it would have to wait for. The session bus comes from outside, for it is there before anything
/// else.
class LinuxPlatform
{
public:
    LinuxPlatform(RunLoop &runLoop, QWindow &panelWindow, DBusService &bus,
                  TrayStatusItem::DrawIcon drawIcon);

    Platform &services() { return services_; }

    /// Writes what is pending. For shutdown.
    void flush();

private:
    NotificationCenter notificationCenter_;
    FileUserDefaults userDefaults_;
    FileUserDefaults localDefaults_;
    FolderCloudStore cloudStore_;
    AutostartLoginItem loginItem_;
    std::unique_ptr<WindowSystem> windowSystem_;
    PulseAudioHardware audioHardware_;
    PulseAudioStreams audioStreams_;
    BusBluetoothBatteries bluetoothBatteries_;
    LinuxDisplayBrightness displayBrightness_;
    FeedbackdHaptics haptics_;
    PortalGlobalShortcuts globalShortcuts_; ///< before the appearance: the first to ask the portal
    DesktopAppearance appearance_;
    TrayStatusItem statusItem_;
    QtHttpClient httpClient_;
    ProcessScriptRunner scriptRunner_;
    MprisMediaRemote mediaRemote_;
    UnixMessageServer messageSocketServer_;
    LinuxUserFiles userFiles_;
    UPowerSources powerSources_;
    PowerProfiles lowPowerMode_;
    DesktopFocus focusState_;
    ProcStatistics hostStatistics_;
    DesktopNotifications userNotifications_;
    CanberraSound systemSound_;
    GeoClueLocationManager locationManager_;
    HelperGeocoder geocoder_;
    SecretKeychain keychain_;
    RouteReachability reachability_;
    SqliteNotificationDatabase notificationDatabase_;
    BusNotificationFeed notificationFeed_;
    EvolutionMail newMailSignal_;
    DesktopLauncher applicationLauncher_;
    DesktopIcons applicationIcons_;
    BrowserAuthSession webAuthSession_;
    Platform services_;
};

} // namespace quillmere
