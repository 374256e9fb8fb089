#include "platform/linux/WindowSystem.h"

#include "platform/linux/wayland/NoDragPasteboard.h"
#include "platform/linux/wayland/NoGlobalEvents.h"
#include "platform/linux/wayland/QtWayland.h"
#include "platform/linux/wayland/WaylandPanelWindow.h"
#include "platform/linux/wayland/WaylandProbe.h"
#include "platform/linux/wayland/WaylandRunningApplications.h"
#include "platform/linux/window/QtScreens.h"
#include "platform/linux/window/X11DragPasteboard.h"
#include "platform/linux/window/X11GlobalEvents.h"
#include "platform/linux/window/X11Observer.h"
#include "platform/linux/window/X11PanelWindow.h"
#include "platform/linux/window/X11RunningApplications.h"

namespace quillmere {

namespace {

class X11WindowSystem : public WindowSystem
{
public:
    explicit X11WindowSystem(QWindow &window)
        : panelWindow_(window, observer_)
        , globalEvents_(observer_.connection())
        , dragPasteboard_(observer_)
        , runningApplications_(observer_)
    {
    }

    Screens &screens() override { return screens_; }
    PanelWindow &panelWindow() override { return panelWindow_; }
    GlobalEvents &globalEvents() override { return globalEvents_; }
    DragPasteboard &dragPasteboard() override { return dragPasteboard_; }
    RunningApplications &runningApplications() override { return runningApplications_; }

private:
    QtScreens screens_;
    X11Observer observer_;
    X11PanelWindow panelWindow_;
    X11GlobalEvents globalEvents_;
    X11DragPasteboard dragPasteboard_;
    X11RunningApplications runningApplications_;
};

class WaylandWindowSystem : public WindowSystem
{
public:
    explicit WaylandWindowSystem(QWindow &window)
        : globals_(*qtwayland::display())
        , panelWindow_(window, globals_)
        , runningApplications_(globals_)
    {
    }

    Screens &screens() override { return screens_; }
    PanelWindow &panelWindow() override { return panelWindow_; }
    GlobalEvents &globalEvents() override { return globalEvents_; }
    DragPasteboard &dragPasteboard() override { return dragPasteboard_; }
    RunningApplications &runningApplications() override { return runningApplications_; }

private:
    QtScreens screens_;
    WaylandGlobals globals_;
    WaylandPanelWindow panelWindow_;
    NoGlobalEvents globalEvents_;
    NoDragPasteboard dragPasteboard_;
    WaylandRunningApplications runningApplications_;
};

/// The plugin's name, or a list of them in order of preference; empty leaves it to Qt.
QByteArray choosePlatform()
{
    if (compositorOffersLayerShell())
        return QByteArrayLiteral("wayland;xcb");
    // Without a layer shell only the desktop's X server lets a window stay over all others.
    return qEnvironmentVariableIsSet("DISPLAY") ? QByteArrayLiteral("xcb") : QByteArray();
}

} // namespace

WindowSystemChoice::WindowSystemChoice()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        set("QT_QPA_PLATFORM", choosePlatform());
    // The island is drawn in shared memory; asked for anything else, Qt loads a GL stack.
    if (!qEnvironmentVariableIsSet("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"))
        set("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", QByteArrayLiteral("shm"));
    // Stays, for Qt reads it again and again.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
}

WindowSystemChoice::~WindowSystemChoice()
{
    if (qtwayland::isUsed())
        qtwayland::chooseBuffers();
    for (const char *variable : set_)
        qunsetenv(variable);
}

void WindowSystemChoice::set(const char *variable, const QByteArray &value)
{
    if (value.isEmpty())
        return;
    qputenv(variable, value);
    set_.push_back(variable);
}

std::unique_ptr<WindowSystem> makeWindowSystem(QWindow &panelWindow)
{
    if (qtwayland::isUsed())
        return std::make_unique<WaylandWindowSystem>(panelWindow);
    return std::make_unique<X11WindowSystem>(panelWindow);
}

} // namespace quillmere
