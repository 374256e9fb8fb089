#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/core/XdgPaths.h"

#include <QCoreApplication>

namespace quillmere {

LinuxPlatform::LinuxPlatform(RunLoop &runLoop, QWindow &panelWindow, StatePublisher &statePublisher,
                             RemoteControl &remoteControl)
    : userDefaults_(runLoop, xdg::configHome() + QStringLiteral("/quillmere/defaults.json"))
    , localDefaults_(runLoop, xdg::configHome() + QStringLiteral("/quillmere/local.json"))
    , cloudStore_(runLoop, localDefaults_)
    , loginItem_(runLoop, xdg::configHome(), QCoreApplication::applicationFilePath())
    , panelWindow_(panelWindow, observer_)
    , globalEvents_(observer_.connection())
    , audioHardware_(runLoop)
    , services_{runLoop,       notificationCenter_, userDefaults_,  localDefaults_,
                cloudStore_,   loginItem_,          screens_,       panelWindow_,
                globalEvents_, audioHardware_,      statePublisher, remoteControl}
{
}

void LinuxPlatform::flush()
{
    userDefaults_.flush();
    localDefaults_.flush();
    cloudStore_.flush();
}

} // namespace quillmere
