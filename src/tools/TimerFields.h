#pragma once

#include <QVariantMap>

namespace quillmere {

class CountdownTimerManager;
class PomodoroManager;

/// Both timers as other programs read them: keys are the published fields, enumerations are case
/// names, times are whole seconds, so that a running timer changes something once a second only.
QVariantMap timerFields(const PomodoroManager &pomodoro, const CountdownTimerManager &countdown);

} // namespace quillmere
