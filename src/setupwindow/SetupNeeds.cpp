#include "setupwindow/SetupNeeds.h"

#include "claude/HookInstaller.h"
#include "platform/AudioHardware.h"
#include "platform/DisplayBrightness.h"
#include "platform/LocationManager.h"
#include "platform/MediaRemote.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/UserDefaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace quillmere {

namespace {

using enum SetupNeed::State;

struct Needs {
    Q_DECLARE_TR_FUNCTIONS(SetupNeeds)
};

SetupNeed missingSoundServer()
{
    return {Needs::tr("No sound server answers. Install PipeWire or PulseAudio."), Missing};
}

} // namespace

SetupNeed soundNeed(const Platform &platform)
{
    const AudioHardware &audio = platform.audioHardware;
    if (!audio.isAvailable())
        return missingSoundServer();
    const auto device = audio.describe(audio.defaultOutputDevice());
    if (!device || !device->name)
        return {Needs::tr("Ready.")};
    return {Needs::tr("Ready. Sound goes to %1.").arg(*device->name)};
}

SetupNeed headphonesNeed(const Platform &platform)
{
    return platform.audioHardware.isAvailable()
               ? SetupNeed{Needs::tr("Ready. The sound server tells when they connect.")}
               : missingSoundServer();
}

SetupNeed brightnessNeed(const Platform &platform)
{
    return platform.displayBrightness.isAvailable()
               ? SetupNeed{Needs::tr("Ready. The display tells its brightness.")}
               : SetupNeed{Needs::tr("No display here tells its brightness yet."), Open};
}

SetupNeed mediaNeed(const Platform &platform)
{
    return platform.mediaRemote.isAvailable()
               ? SetupNeed{Needs::tr("Ready. Players and browsers are found by themselves.")}
               : SetupNeed{Needs::tr("There is no session bus to hear players on."), Missing};
}

SetupNeed batteryNeed(const Platform &platform)
{
    const PowerSources &power = platform.powerSources;
    if (!power.isAvailable())
        return {Needs::tr("No power service answers. Install UPower."), Missing};
    const auto status = power.status();
    return status ? SetupNeed{Needs::tr("Ready. The battery is at %1 %.").arg(status->level)}
                  : SetupNeed{Needs::tr("This machine has no battery."), Open};
}

SetupNeed weatherNeed(const Platform &platform)
{
    if (platform.localDefaults.object(QStringLiteral("weatherPlace")).isValid())
        return {Needs::tr("Ready, for the place you typed.")};
    switch (platform.locationManager.authorizationStatus()) {
    case AuthorizationStatus::AuthorizedAlways:
        return {Needs::tr("Ready. The desktop tells where you are.")};
    case AuthorizationStatus::NotDetermined:
        return {Needs::tr("Asks the desktop where you are, or type a place on its page."), Open};
    case AuthorizationStatus::Denied:
        return {Needs::tr("The desktop keeps your location private. Type a place on its page."),
                Missing};
    case AuthorizationStatus::Restricted:
        break;
    }
    return {Needs::tr("There is no location service. Type a place on its page."), Missing};
}

SetupNeed messagesNeed(const Platform & /*platform*/)
{
    return {Needs::tr("Read from the desktop's notifications, which show as before."), Open};
}

SetupNeed mailNeed(const Platform & /*platform*/)
{
    return {Needs::tr("Read where Thunderbird, Evolution or a mail folder keeps it."), Open};
}

SetupNeed fileTrayNeed(const Platform & /*platform*/)
{
    return {Needs::tr("Ready. Drag files to the top of the screen.")};
}

SetupNeed timersNeed(const Platform & /*platform*/)
{
    return {Needs::tr("Ready. They are on the last page of the dashboard.")};
}

SetupNeed assistantNeed(const UserFiles &files)
{
    if (!findsAssistant(files, QDir::homePath()))
        return {Needs::tr("Not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin."), Absent};
    if (QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty())
        return {Needs::tr("Its hook needs Python. Install python3."), Missing};
    return {Needs::tr("Puts a hook into its settings. That tells Quillmere, and nobody else, the "
                      "folder, the tool and how a prompt begins.")};
}

} // namespace quillmere
