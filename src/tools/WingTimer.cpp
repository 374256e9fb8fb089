#include "tools/WingTimer.h"

#include "platform/Symbols.h"
#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/TimerTexts.h"

#include <utility>

namespace quillmere {

std::optional<WingTimerContent> wingTimer(const PomodoroManager &pomodoro,
                                          const CountdownTimerManager &countdown)
{
    const bool focuses = pomodoro.state() != PomodoroState::Idle;
    const bool counts = countdown.isRunning();
    const bool countsDown = counts && countdown.mode() == TimerMode::Countdown;
    if (focuses && !(countsDown && countdown.remaining() < pomodoro.timeRemaining()))
        return WingTimerContent{symbols::timer, pomodoroText(pomodoro.timeRemaining())};
    if (counts)
        return WingTimerContent{countsDown ? symbols::hourglass : symbols::stopwatch,
                                countdownText(countdown.displayed())};
    return std::nullopt;
}

namespace {

bool isPaused(const CountdownTimerManager &countdown)
{
    const bool isOver = countdown.mode() == TimerMode::Countdown && countdown.remaining() <= 0;
    return !countdown.isRunning() && countdown.elapsedSeconds() > 0 && !isOver;
}

} // namespace

WingTimer::WingTimer(const PomodoroManager &pomodoro, const CountdownTimerManager &countdown)
    : pomodoro_(pomodoro)
    , countdown_(countdown)
{
    connect(&pomodoro, &PomodoroManager::stateChanged, this, &WingTimer::update);
    connect(&pomodoro, &PomodoroManager::timeRemainingChanged, this, &WingTimer::update);
    connect(&countdown, &CountdownTimerManager::isRunningChanged, this, &WingTimer::update);
    connect(&countdown, &CountdownTimerManager::elapsedSecondsChanged, this, &WingTimer::update);
    update();
}

void WingTimer::update()
{
    auto content = wingTimer(pomodoro_, countdown_);
    if (std::exchange(content_, content) != content)
        Q_EMIT contentChanged();
    const bool isUnderWay = content_ || isPaused(countdown_);
    if (std::exchange(isUnderWay_, isUnderWay) != isUnderWay)
        Q_EMIT underWayChanged();
}

} // namespace quillmere
