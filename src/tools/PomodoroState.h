#pragma once

#include <QLatin1StringView>

namespace quillmere {

enum class PomodoroState { Idle, Working, ShortBreak, LongBreak };

/// "idle", "working", "shortBreak", "longBreak".
QLatin1StringView pomodoroStateName(PomodoroState state);

inline bool isBreak(PomodoroState state)
{
    return state == PomodoroState::ShortBreak || state == PomodoroState::LongBreak;
}

} // namespace quillmere
