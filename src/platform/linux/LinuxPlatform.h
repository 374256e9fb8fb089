#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/linux/audio/PulseAudioHardware.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/FileUserDefaults.h"
#include "platform/linux/desktop/FolderCloudStore.h"
#include "platform/linux/window/QtScreens.h"
#include "platform/linux/window/X11GlobalEvents.h"
#include "platform/linux/window/X11Observer.h"
#include "platform/linux/window/X11PanelWindow.h"

namespace quillmere {

/// The Linux implementation of every system service. Needs the QGuiApplication; connects to nothing
/// it would have to wait for. What other programs see and ask comes from outside, for that is there
/// before anything else.
class LinuxPlatform
{
public:
    LinuxPlatform(RunLoop &runLoop, QWindow &panelWindow, StatePublisher &statePublisher,
                  RemoteControl &remoteControl);

    Platform &services() { return services_; }

    /// Writes what is pending. For shutdown.
    void flush();

private:
    NotificationCenter notificationCenter_;
    FileUserDefaults userDefaults_;
    FileUserDefaults localDefaults_;
    FolderCloudStore cloudStore_;
    AutostartLoginItem loginItem_;
    QtScreens screens_;
    X11Observer observer_;
    X11PanelWindow panelWindow_;
    X11GlobalEvents globalEvents_;
    PulseAudioHardware audioHardware_;
    Platform services_;
};

} // namespace quillmere
