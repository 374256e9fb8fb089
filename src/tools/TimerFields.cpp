#include "tools/TimerFields.h"

#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/TimerTexts.h"

namespace quillmere {

QVariantMap timerFields(const PomodoroManager &pomodoro, const CountdownTimerManager &countdown)
{
    using namespace Qt::StringLiterals;

    return {{u"state"_s, QString(pomodoroStateName(pomodoro.state()))},
            {u"timeRemaining"_s, wholeSeconds(pomodoro.timeRemaining())},
            {u"sessionsCompleted"_s, pomodoro.sessionsCompleted()},
            {u"mode"_s, QString(timerModeName(countdown.mode()))},
            {u"isRunning"_s, countdown.isRunning()},
            {u"elapsedSeconds"_s, wholeSeconds(countdown.elapsedSeconds())},
            {u"targetSeconds"_s, wholeSeconds(countdown.targetSeconds())},
            {u"presetMinutes"_s, countdown.presetMinutes()}};
}

} // namespace quillmere
