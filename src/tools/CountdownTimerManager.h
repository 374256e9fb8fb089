#pragma once

#include "platform/RunLoop.h"
#include "tools/TimerMode.h"

#include <QObject>

#include <optional>

namespace quillmere {

class SystemSound;
class UserNotifications;

/// The kitchen timer and the stopwatch. Elapsed time is measured on the clock that counts suspend
/// and is blind to changes of the wall clock; ticks only show it. Main thread only.
class CountdownTimerManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(quillmere::TimerMode mode READ mode NOTIFY modeChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(double elapsedSeconds READ elapsedSeconds NOTIFY elapsedSecondsChanged)
    Q_PROPERTY(double targetSeconds READ targetSeconds NOTIFY targetSecondsChanged)
    Q_PROPERTY(int presetMinutes READ presetMinutes NOTIFY presetMinutesChanged)

public:
    CountdownTimerManager(RunLoop &runLoop, UserNotifications &notifications, SystemSound &sound);

    /// Begins, or goes on from where pause() left it. Does nothing while running. A countdown that
    /// has reached its end ends again with its first tick; reset() comes before another round.
    void start();
    void pause();

    /// Stops at 0.
    void reset();

    /// A countdown of that many minutes, ready to be started. Negative ones count as 0.
    void setPreset(int minutes);

    /// The same for any length; the preset then shows its whole minutes.
    void setTarget(double seconds);

    /// Another mode begins stopped at 0.
    void setMode(TimerMode mode);

    /// What one button does: pauses, goes on, or begins the same countdown again after its end.
    void toggle();

    TimerMode mode() const { return mode_; }
    bool isRunning() const { return isRunning_; }
    double elapsedSeconds() const { return elapsedSeconds_; }
    double targetSeconds() const { return targetSeconds_; }
    int presetMinutes() const { return presetMinutes_; }

    /// Seconds left of the countdown, never negative; 0 in stopwatch mode.
    double remaining() const;

    /// What is shown in seconds: the time counted by the stopwatch, the time left of a countdown.
    double displayed() const;

    /// 0..1 of the countdown; 0 without a target.
    double progress() const;

Q_SIGNALS:
    void modeChanged();
    void isRunningChanged();
    void elapsedSecondsChanged();
    void targetSecondsChanged();
    void presetMinutesChanged();

    /// The countdown has reached its end by itself.
    void finished();

private:
    using Signal = void (CountdownTimerManager::*)();

    void tick();
    void finish();
    void stopTimer();
    template <class T>
    void publish(T &field, T value, Signal changed);

    RunLoop &runLoop_;
    UserNotifications &notifications_;
    SystemSound &sound_;
    TimerMode mode_ = TimerMode::Countdown;
    bool isRunning_ = false;
    double elapsedSeconds_ = 0;
    double targetSeconds_ = 300;
    int presetMinutes_ = 5;
    Task timer_;
    std::optional<Instant> startDate_; ///< when the running segment began
    double pausedElapsed_ = 0;         ///< counted before it
};

} // namespace quillmere
