#pragma once

#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/QuillmereShortcuts.h"
#include "tools/WingTimer.h"

#include <functional>

namespace quillmere {

class HUDManager;
class SettingsStore;

/// What the timers and their shortcuts need of the system.
struct TimerServices {
    RunLoop &runLoop;
    UserNotifications &userNotifications;
    SystemSound &systemSound;
    NotificationCenter &notificationCenter;
    ShortcutPublisher &shortcutPublisher;
};

/// The focus timer, the countdown and what drives them from outside: lengths follow the settings,
/// ends become HUDs, dialogs of shortcuts too. Main thread only.
class Timers
{
public:
    Timers(const TimerServices &services, SettingsStore &settings, HUDManager &hudManager);

    /// While it answers true the island does not tell of an end; the desktop's notification does.
    std::function<bool()> isSuppressed;

    /// Someone looks for the program in the desktop's search.
    void setOnShow(std::function<void()> show) { shortcuts_.onShow = std::move(show); }

    /// Ends whatever runs. For quit.
    void stop();

    PomodoroManager &pomodoro() { return pomodoro_; }
    CountdownTimerManager &countdown() { return countdown_; }
    const WingTimer &wing() const { return wing_; }
    QuillmereShortcuts &shortcuts() { return shortcuts_; }

private:
    void tellEnd(HUDContent hud);

    HUDManager &hudManager_;
    PomodoroManager pomodoro_;
    CountdownTimerManager countdown_;
    WingTimer wing_;
    QuillmereShortcuts shortcuts_;
    QObject context_;
};

} // namespace quillmere
