#include "tools/CountdownTimerManager.h"

#include "platform/SystemSound.h"
#include "platform/UserNotifications.h"
#include "tools/TimerMessages.h"

#include <QUuid>

#include <algorithm>
#include <limits>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration tickInterval = 100ms;
/// Half the interval: with any other repeating timer that can wait as long it falls into step,
/// whatever the moment it was started at.
constexpr Duration tickTolerance = 50ms;

constexpr double secondsPerMinute = 60;
constexpr double longestTarget = std::numeric_limits<int>::max() * secondsPerMinute;

} // namespace

CountdownTimerManager::CountdownTimerManager(RunLoop &runLoop, UserNotifications &notifications,
                                             SystemSound &sound)
    : runLoop_(runLoop)
    , notifications_(notifications)
    , sound_(sound)
{
}

void CountdownTimerManager::start()
{
    if (isRunning_)
        return;
    startDate_ = runLoop_.now();
    pausedElapsed_ = elapsedSeconds_;
    timer_ = runLoop_.every(tickInterval, tickTolerance, [this] { tick(); });
    publish(isRunning_, true, &CountdownTimerManager::isRunningChanged);
}

void CountdownTimerManager::pause()
{
    if (isRunning_)
        tick(); // what has passed since the last one counts as well
    pausedElapsed_ = elapsedSeconds_;
    stopTimer();
}

void CountdownTimerManager::reset()
{
    stopTimer();
    publish(elapsedSeconds_, 0.0, &CountdownTimerManager::elapsedSecondsChanged);
}

void CountdownTimerManager::setPreset(int minutes)
{
    setTarget(minutes * secondsPerMinute);
}

void CountdownTimerManager::setTarget(double seconds)
{
    reset();
    const double target = seconds > 0 ? std::min(seconds, longestTarget) : 0;
    publish(targetSeconds_, target, &CountdownTimerManager::targetSecondsChanged);
    publish(presetMinutes_, static_cast<int>(target / secondsPerMinute),
            &CountdownTimerManager::presetMinutesChanged);
    publish(mode_, TimerMode::Countdown, &CountdownTimerManager::modeChanged);
}

void CountdownTimerManager::setMode(TimerMode mode)
{
    if (mode == mode_)
        return;
    reset();
    publish(mode_, mode, &CountdownTimerManager::modeChanged);
}

void CountdownTimerManager::toggle()
{
    if (isRunning_)
        return pause();
    if (mode_ == TimerMode::Countdown && remaining() <= 0)
        reset();
    start();
}

double CountdownTimerManager::remaining() const
{
    return mode_ == TimerMode::Countdown ? std::max(targetSeconds_ - elapsedSeconds_, 0.0) : 0;
}

double CountdownTimerManager::displayed() const
{
    return mode_ == TimerMode::Stopwatch ? elapsedSeconds_ : remaining();
}

double CountdownTimerManager::progress() const
{
    return targetSeconds_ > 0 ? std::min(elapsedSeconds_ / targetSeconds_, 1.0) : 0;
}

void CountdownTimerManager::tick()
{
    if (!startDate_)
        return;
    const double elapsed = pausedElapsed_ + toSeconds(runLoop_.now() - *startDate_);
    const bool isOver = mode_ == TimerMode::Countdown && elapsed >= targetSeconds_;
    publish(elapsedSeconds_, isOver ? targetSeconds_ : elapsed,
            &CountdownTimerManager::elapsedSecondsChanged);
    if (isOver && isRunning_)
        finish();
}

void CountdownTimerManager::finish()
{
    stopTimer();
    const auto message = countdownMessage(targetSeconds_);
    const QString unique = QUuid::createUuid().toString(QUuid::WithoutBraces);
    notifications_.deliver({.identifier = QStringLiteral("countdown-") + unique,
                            .title = message.title,
                            .body = message.body,
                            .playsSound = true});
    sound_.play(Sound::Beep);
    Q_EMIT finished();
}

void CountdownTimerManager::stopTimer()
{
    timer_.cancel();
    startDate_.reset();
    publish(isRunning_, false, &CountdownTimerManager::isRunningChanged);
}

template <class T>
void CountdownTimerManager::publish(T &field, T value, Signal changed)
{
    if (std::exchange(field, value) != value)
        Q_EMIT(this->*changed)();
}

} // namespace quillmere
