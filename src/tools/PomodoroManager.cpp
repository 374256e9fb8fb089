#include "tools/PomodoroManager.h"

#include "platform/UserNotifications.h"
#include "settings/SettingsStore.h"
#include "tools/TimerMessages.h"

#include <QUuid>

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr double secondsPerMinute = 60;
constexpr Duration tickInterval = 1s;
constexpr Duration tickTolerance = 100ms;

} // namespace

PomodoroManager::PomodoroManager(RunLoop &runLoop, UserNotifications &notifications)
    : runLoop_(runLoop)
    , notifications_(notifications)
{
}

void PomodoroManager::copyDurations(const SettingsStore &settings)
{
    workDuration = settings.pomodoroWorkMinutes.get() * secondsPerMinute;
    shortBreakDuration = settings.pomodoroShortBreakMinutes.get() * secondsPerMinute;
    longBreakDuration = settings.pomodoroLongBreakMinutes.get() * secondsPerMinute;
}

void PomodoroManager::startWork()
{
    begin(PomodoroState::Working, workDuration);
}

void PomodoroManager::startBreak()
{
    if (sessionsCompleted_ >= 1 && sessionsCompleted_ % sessionsBeforeLongBreak == 0)
        begin(PomodoroState::LongBreak, longBreakDuration);
    else
        begin(PomodoroState::ShortBreak, shortBreakDuration);
}

void PomodoroManager::skip()
{
    if (state_ == PomodoroState::Idle)
        return;
    timer_.cancel();
    complete(state_);
}

void PomodoroManager::stop()
{
    timer_.cancel();
    phaseDuration_ = 0;
    publish(PomodoroState::Idle, 0);
}

void PomodoroManager::begin(PomodoroState state, double duration)
{
    timer_ = runLoop_.every(tickInterval, tickTolerance, [this] { tick(); });
    phaseDuration_ = duration;
    publish(state, duration);
}

void PomodoroManager::tick()
{
    const PomodoroState counted = state_;
    publish(counted, std::max(timeRemaining_ - 1, 0.0));
    if (onTimerTick)
        onTimerTick(counted, timeRemaining_);
    if (timeRemaining_ > 0 || !timer_) // not if the callback has stopped it
        return;
    timer_.cancel();
    complete(counted);
}

void PomodoroManager::complete(PomodoroState ended)
{
    if (ended == PomodoroState::Working) {
        ++sessionsCompleted_;
        Q_EMIT sessionsCompletedChanged();
    }
    if (onSessionComplete)
        onSessionComplete(ended);
    notify(ended);
    if (isBreak(ended))
        stop();
    else if (ended == PomodoroState::Working)
        startBreak();
}

void PomodoroManager::notify(PomodoroState ended)
{
    const auto message = phaseMessage(ended, sessionsCompleted_);
    if (!message)
        return;
    // Of its own each time, so that none takes the place of the one before.
    const QString unique = QUuid::createUuid().toString(QUuid::WithoutBraces);
    notifications_.deliver({.identifier = QStringLiteral("pomodoro-") + unique,
                            .title = message->title,
                            .body = message->body,
                            .playsSound = true});
}

void PomodoroManager::publish(PomodoroState state, double timeRemaining)
{
    const bool stateIsNew = std::exchange(state_, state) != state;
    const bool timeIsNew = std::exchange(timeRemaining_, timeRemaining) != timeRemaining;
    if (stateIsNew)
        Q_EMIT stateChanged();
    if (timeIsNew)
        Q_EMIT timeRemainingChanged();
}

} // namespace quillmere
