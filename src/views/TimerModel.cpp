#include "views/TimerModel.h"

#include "settings/SettingsStore.h"
#include "tools/TimerTexts.h"
#include "tools/Timers.h"

#include <cmath>

namespace quillmere {

namespace {

constexpr QColor red(255, 100, 100);
constexpr QColor green(66, 219, 120);
constexpr QColor orange(255, 176, 66);
constexpr QColor blue(94, 172, 255);

TimerMode modeOf(bool isStopwatch)
{
    return isStopwatch ? TimerMode::Stopwatch : TimerMode::Countdown;
}

} // namespace

TimerModel::TimerModel(SettingsStore &settings, Timers &timers, QObject *parent)
    : QObject(parent)
    , settings_(settings)
    , timers_(timers)
{
    const auto follow = [this](auto &source, auto signal) {
        connect(&source, signal, this, &TimerModel::changed);
    };
    PomodoroManager &pomodoro = timers_.pomodoro();
    CountdownTimerManager &countdown = timers_.countdown();
    follow(pomodoro, &PomodoroManager::stateChanged);
    follow(pomodoro, &PomodoroManager::sessionsCompletedChanged);
    follow(countdown, &CountdownTimerManager::modeChanged);
    follow(countdown, &CountdownTimerManager::isRunningChanged);
    follow(countdown, &CountdownTimerManager::targetSecondsChanged);
    connect(&pomodoro, &PomodoroManager::timeRemainingChanged, this, &TimerModel::timeChanged);
    connect(&countdown, &CountdownTimerManager::elapsedSecondsChanged, this,
            &TimerModel::timeChanged);
    connect(&timers_.wing(), &WingTimer::contentChanged, this, &TimerModel::updateWing);
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        if (key == settings_.pomodoroWorkMinutes.key())
            Q_EMIT changed();
    });
    updateWing();
}

void TimerModel::setWatched(bool watched)
{
    if (std::exchange(watched_, watched) == watched)
        return;
    if (watched)
        turnToWhatRuns();
    else
        closeEntry();
    Q_EMIT changed();
}

/// Ten ticks a second show one text a second, and the ring moves with it.
void TimerModel::timeChanged()
{
    if (watched_ && std::exchange(shownTime_, time()) != shownTime_)
        Q_EMIT changed();
}

void TimerModel::updateWing()
{
    const auto &content = timers_.wing().content();
    if (!content)
        return;
    wingSymbol_ = content->symbol;
    wingText_ = content->text;
    Q_EMIT wingChanged();
}

void TimerModel::turnToWhatRuns()
{
    Tool tool = tool_;
    if (timers_.pomodoro().state() != PomodoroState::Idle)
        tool = Tool::Focus;
    else if (timers_.countdown().isRunning())
        tool = counts(TimerMode::Stopwatch) ? Tool::Stopwatch : Tool::Countdown;
    else if (!settings_.enablePomodoro.get() && tool == Tool::Focus)
        tool = Tool::Countdown;
    choose(static_cast<int>(tool));
}

QStringList TimerModel::tools() const
{
    return {tr("Focus"), tr("Countdown"), tr("Stopwatch")};
}

void TimerModel::choose(int tool)
{
    if (tool < 0 || tool >= tools().size() || tool == this->tool())
        return;
    closeEntry();
    tool_ = static_cast<Tool>(tool);
    Q_EMIT toolsChanged();
    Q_EMIT changed();
}

/// Whether the one object behind countdown and stopwatch is in this mode, with something to show.
bool TimerModel::counts(TimerMode mode) const
{
    return timers_.countdown().mode() == mode;
}

QString TimerModel::title() const
{
    if (tool_ != Tool::Focus)
        return tools().at(tool());
    switch (timers_.pomodoro().state()) {
    case PomodoroState::ShortBreak:
        return tr("Short Break");
    case PomodoroState::LongBreak:
        return tr("Long Break");
    case PomodoroState::Working:
    case PomodoroState::Idle:
        break;
    }
    return tr("Focus");
}

QString TimerModel::time() const
{
    const PomodoroManager &pomodoro = timers_.pomodoro();
    const CountdownTimerManager &countdown = timers_.countdown();
    switch (tool_) {
    case Tool::Focus:
        return pomodoroText(pomodoro.state() == PomodoroState::Idle ? pomodoro.workDuration
                                                                    : pomodoro.timeRemaining());
    case Tool::Countdown:
        return countdownText(counts(TimerMode::Countdown) ? countdown.remaining()
                                                          : countdown.targetSeconds());
    case Tool::Stopwatch:
        break;
    }
    return countdownText(counts(TimerMode::Stopwatch) ? countdown.displayed() : 0);
}

double TimerModel::fraction() const
{
    const CountdownTimerManager &countdown = timers_.countdown();
    switch (tool_) {
    case Tool::Focus:
        return 1 - pomodoroProgress(timers_.pomodoro());
    case Tool::Countdown:
        return counts(TimerMode::Countdown) ? 1 - countdown.progress() : 1;
    case Tool::Stopwatch:
        break;
    }
    // A stopwatch has no end: its ring goes round once a minute.
    constexpr double minute = 60;
    return counts(TimerMode::Stopwatch) ? std::fmod(countdown.displayed(), minute) / minute : 0;
}

QColor TimerModel::color() const
{
    if (tool_ == Tool::Focus)
        return isBreak(timers_.pomodoro().state()) ? green : red;
    return tool_ == Tool::Countdown ? orange : blue;
}

QVariantList TimerModel::dots() const
{
    QVariantList list;
    if (tool_ == Tool::Focus)
        for (const SessionDot dot :
             sessionDots(timers_.pomodoro().state(), timers_.pomodoro().sessionsCompleted()))
            list.append(static_cast<int>(dot));
    return list;
}

bool TimerModel::isRunning() const
{
    if (tool_ == Tool::Focus)
        return timers_.pomodoro().state() != PomodoroState::Idle;
    return timers_.countdown().isRunning() && counts(modeOf(tool_ == Tool::Stopwatch));
}

QString TimerModel::mainAction() const
{
    if (tool_ == Tool::Focus)
        return isRunning() ? tr("Stop") : tr("Start");
    if (isRunning())
        return tr("Pause");
    return canReset() && fraction() > 0 ? tr("Resume") : tr("Start");
}

bool TimerModel::canSkip() const
{
    return tool_ == Tool::Focus && isRunning();
}

bool TimerModel::canReset() const
{
    return tool_ != Tool::Focus && counts(modeOf(tool_ == Tool::Stopwatch)) &&
           timers_.countdown().elapsedSeconds() > 0;
}

QVariantList TimerModel::presets() const
{
    QVariantList list;
    if (tool_ == Tool::Countdown)
        for (const int minutes : countdownPresets)
            list.append(minutes);
    return list;
}

int TimerModel::preset() const
{
    constexpr int secondsPerMinute = 60;
    const double target = timers_.countdown().targetSeconds();
    const int minutes = timers_.countdown().presetMinutes();
    return target == minutes * secondsPerMinute ? minutes : -1;
}

void TimerModel::useMode(TimerMode mode)
{
    if (!counts(mode))
        timers_.countdown().setMode(mode);
}

void TimerModel::doMain()
{
    PomodoroManager &pomodoro = timers_.pomodoro();
    if (tool_ != Tool::Focus) {
        useMode(modeOf(tool_ == Tool::Stopwatch));
        timers_.countdown().toggle();
    } else if (pomodoro.state() == PomodoroState::Idle) {
        pomodoro.startWork();
    } else {
        pomodoro.stop();
    }
}

void TimerModel::skip()
{
    if (canSkip())
        timers_.pomodoro().skip();
}

void TimerModel::reset()
{
    if (canReset())
        timers_.countdown().reset();
    Q_EMIT changed();
}

void TimerModel::startPreset(int minutes)
{
    useMode(TimerMode::Countdown);
    timers_.countdown().setPreset(minutes);
    timers_.countdown().start();
}

void TimerModel::openEntry()
{
    if (!std::exchange(isEntering_, true))
        Q_EMIT enteringChanged();
}

void TimerModel::closeEntry()
{
    if (std::exchange(isEntering_, false))
        Q_EMIT enteringChanged();
}

bool TimerModel::enter(const QString &text)
{
    const auto length = countdownLength(text);
    if (!length)
        return false;
    useMode(TimerMode::Countdown);
    timers_.countdown().setTarget(*length);
    timers_.countdown().start();
    closeEntry();
    return true;
}

} // namespace quillmere
