#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/core/XdgPaths.h"
#include "platform/linux/dbus/DBusService.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QIcon>

namespace quillmere {

namespace {

QDBusConnection sessionBus(const DBusService &bus)
{
    return bus.connection().value_or(QDBusConnection(QString()));
}

QString helperFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/quillmere");
}

LinuxDisplayBrightness::Places displayPlaces()
{
    return {.ddcHelper = helperFolder() + QStringLiteral("/ddc-brightness")};
}

ProcessScriptRunner::Places scriptPlaces()
{
    return {.replacements = xdg::configHome() + QStringLiteral("/quillmere/scripts"),
            .builtIn = helperFolder()};
}

SchemeHandlerPlaces schemeHandlerPlaces()
{
    return {.configHome = xdg::configHome(),
            .dataHome = xdg::dataHome(),
            .program = QCoreApplication::applicationFilePath()};
}

} // namespace

LinuxPlatform::LinuxPlatform(RunLoop &runLoop, QWindow &panelWindow, DBusService &bus,
                             TrayStatusItem::DrawIcon drawIcon)
    : userDefaults_(runLoop, xdg::configHome() + QStringLiteral("/quillmere/defaults.json"))
    , localDefaults_(runLoop, xdg::configHome() + QStringLiteral("/quillmere/local.json"))
    , cloudStore_(runLoop, localDefaults_)
    , loginItem_(runLoop, xdg::configHome(), QCoreApplication::applicationFilePath())
    , windowSystem_(makeWindowSystem(panelWindow))
    , audioHardware_(runLoop)
    , audioStreams_(runLoop, audioHardware_)
    , bluetoothBatteries_(runLoop)
    , displayBrightness_(runLoop, displayPlaces())
    , haptics_(sessionBus(bus))
    , globalShortcuts_(sessionBus(bus), bus.shortcuts())
    , appearance_(runLoop, sessionBus(bus),
                  DesktopAppearance::kdeGlobalsOfSession(xdg::configHome()))
    , statusItem_(runLoop, bus.connection(), std::move(drawIcon))
    , httpClient_(runLoop)
    , scriptRunner_(runLoop, scriptPlaces())
    , mediaRemote_(runLoop, notificationCenter_, httpClient_, sessionBus(bus))
    , messageSocketServer_(runLoop)
    , powerSources_(runLoop)
    , lowPowerMode_(runLoop)
    , focusState_(runLoop, sessionBus(bus), qEnvironmentVariable("XDG_CURRENT_DESKTOP"))
    , userNotifications_(sessionBus(bus))
    , systemSound_(runLoop)
    , locationManager_(runLoop)
    , geocoder_(scriptRunner_)
    , keychain_(sessionBus(bus))
    , reachability_(runLoop)
    , notificationFeed_(runLoop, sessionBusAddress())
    , newMailSignal_(sessionBus(bus))
    , applicationIcons_(runLoop, &QIcon::themeName)
    , webAuthSession_(runLoop, schemeHandlerPlaces(), &QDesktopServices::openUrl)
    , services_{runLoop,
                notificationCenter_,
                userDefaults_,
                localDefaults_,
                cloudStore_,
                loginItem_,
                windowSystem_->screens(),
                windowSystem_->panelWindow(),
                windowSystem_->globalEvents(),
                windowSystem_->dragPasteboard(),
                windowSystem_->runningApplications(),
                audioHardware_,
                audioStreams_,
                bluetoothBatteries_,
                displayBrightness_,
                haptics_,
                appearance_,
                statusItem_,
                httpClient_,
                scriptRunner_,
                mediaRemote_,
                messageSocketServer_,
                userFiles_,
                powerSources_,
                lowPowerMode_,
                focusState_,
                hostStatistics_,
                userNotifications_,
                systemSound_,
                locationManager_,
                geocoder_,
                keychain_,
                reachability_,
                notificationDatabase_,
                notificationFeed_,
                newMailSignal_,
                applicationLauncher_,
                applicationIcons_,
                webAuthSession_,
                bus.statePublisher(),
                bus.remoteControl(),
                bus.shortcuts()}
{
}

void LinuxPlatform::flush()
{
    userDefaults_.flush();
    localDefaults_.flush();
    cloudStore_.flush();
}

} // namespace quillmere
