#pragma once

#include "platform/RunLoop.h"
#include "tools/PomodoroState.h"

#include <QObject>

#include <functional>

namespace quillmere {

class SettingsStore;
class UserNotifications;

/// The focus timer: a work session, then a short break by itself, after every fourth session a long
/// one; the next session waits for the user. Time is counted by ticks of a second, so a machine
/// that sleeps or stalls lengthens the phase. Main thread only.
class PomodoroManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(quillmere::PomodoroState state READ state NOTIFY stateChanged)
    Q_PROPERTY(double timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(int sessionsCompleted READ sessionsCompleted NOTIFY sessionsCompletedChanged)

public:
    static constexpr int sessionsBeforeLongBreak = 4;

    PomodoroManager(RunLoop &runLoop, UserNotifications &notifications);

    /// In seconds. A phase under way keeps the length it began with.
    double workDuration = 1500;
    double shortBreakDuration = 300;
    double longBreakDuration = 900;

    /// Takes the three durations over from the settings.
    void copyDurations(const SettingsStore &settings);

    /// Called every second while counting, with what is left after it.
    std::function<void(PomodoroState state, double timeRemaining)> onTimerTick;

    /// Called with the phase that has just ended; the sessions are counted by then.
    std::function<void(PomodoroState ended)> onSessionComplete;

    /// Begins a session from its full length, whatever runs now.
    void startWork();

    /// Begins the break that is due after the sessions so far.
    void startBreak();

    /// Ends the phase under way as if its time were up. Does nothing when idle.
    void skip();

    /// The sessions so far stay counted.
    void stop();

    PomodoroState state() const { return state_; }
    double timeRemaining() const { return timeRemaining_; } ///< seconds; 0 when idle
    int sessionsCompleted() const { return sessionsCompleted_; }

    /// The length of the phase under way in seconds; 0 when idle.
    double phaseDuration() const { return phaseDuration_; }

Q_SIGNALS:
    void stateChanged();
    void timeRemainingChanged();
    void sessionsCompletedChanged();

private:
    void begin(PomodoroState state, double duration);
    void tick();
    void complete(PomodoroState ended);
    void notify(PomodoroState ended);
    void publish(PomodoroState state, double timeRemaining);

    RunLoop &runLoop_;
    UserNotifications &notifications_;
    PomodoroState state_ = PomodoroState::Idle;
    double timeRemaining_ = 0;
    int sessionsCompleted_ = 0;
    double phaseDuration_ = 0;
    Task timer_;
};

} // namespace quillmere
