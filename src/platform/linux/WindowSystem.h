#pragma once

#include <QByteArray>

#include <memory>
#include <vector>

class QWindow;

namespace quillmere {

class DragPasteboard;
class GlobalEvents;
class PanelWindow;
class RunningApplications;
class Screens;

/// The services that depend on which window system carries the program.
class WindowSystem
{
public:
    virtual ~WindowSystem() = default;

    virtual Screens &screens() = 0;
    virtual PanelWindow &panelWindow() = 0;
    virtual GlobalEvents &globalEvents() = 0;
    virtual DragPasteboard &dragPasteboard() = 0;
    virtual RunningApplications &runningApplications() = 0;
};

/// Chooses the window system by what the compositor can do, and tells Qt, which has to know before
/// the QGuiApplication. A choice the user has made in the environment stands.
///
/// While one of these lives the environment carries our choice; programs started later must not
/// inherit it, so destroy it once the QGuiApplication is there.
class WindowSystemChoice
{
public:
    WindowSystemChoice();
    ~WindowSystemChoice();
    WindowSystemChoice(const WindowSystemChoice &) = delete;
    WindowSystemChoice &operator=(const WindowSystemChoice &) = delete;

private:
    void set(const char *variable, const QByteArray &value);

    std::vector<const char *> set_;
};

/// That of the window system the QGuiApplication runs on. The window carries the panel and has to
/// live as long.
std::unique_ptr<WindowSystem> makeWindowSystem(QWindow &panelWindow);

} // namespace quillmere
