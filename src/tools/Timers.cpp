#include "tools/Timers.h"

#include "island/HUDManager.h"
#include "settings/SettingsStore.h"
#include "tools/TimerMessages.h"

#include <utility>

namespace quillmere {

namespace {

constexpr double endHUDDuration = 5;    // seconds
constexpr double dialogHUDDuration = 3; // seconds

} // namespace

Timers::Timers(const TimerServices &services, SettingsStore &settings, HUDManager &hudManager)
    : hudManager_(hudManager)
    , pomodoro_(services.runLoop, services.userNotifications)
    , countdown_(services.runLoop, services.userNotifications, services.systemSound)
    , wing_(pomodoro_, countdown_)
    , shortcuts_(pomodoro_, countdown_, services.notificationCenter, services.shortcutPublisher)
{
    pomodoro_.copyDurations(settings);
    QObject::connect(&settings, &SettingsStore::didChange, &context_,
                     [this, &settings](const QString &key) {
                         if (key == settings.pomodoroWorkMinutes.key() ||
                             key == settings.pomodoroShortBreakMinutes.key() ||
                             key == settings.pomodoroLongBreakMinutes.key())
                             pomodoro_.copyDurations(settings);
                     });
    pomodoro_.onSessionComplete = [this](PomodoroState ended) {
        if (auto hud = phaseHUD(ended, pomodoro_.sessionsCompleted()))
            tellEnd(std::move(*hud));
    };
    QObject::connect(&countdown_, &CountdownTimerManager::finished, &context_,
                     [this] { tellEnd(countdownHUD(countdown_.targetSeconds())); });
    shortcuts_.onDialog = [this](const HUDContent &dialog) {
        hudManager_.show(dialog, false, dialogHUDDuration);
    };
}

void Timers::stop()
{
    pomodoro_.stop();
    countdown_.reset();
}

void Timers::tellEnd(HUDContent hud)
{
    if (!isSuppressed || !isSuppressed())
        hudManager_.show(std::move(hud), false, endHUDDuration);
}

} // namespace quillmere
