#pragma once

#include "island/HUDContent.h"
#include "tools/PomodoroState.h"

#include <QString>

#include <optional>

namespace quillmere {

/// What is told when a timer has ended, by the desktop's notification and by the island alike.
struct TimerMessage {
    QString title;
    QString body;

    bool operator==(const TimerMessage &) const = default;
};

/// Absent for the idle state, which does not end.
std::optional<TimerMessage> phaseMessage(PomodoroState ended, int sessionsCompleted);

/// Tells the whole minutes of the countdown's length.
TimerMessage countdownMessage(double targetSeconds);

/// The HUDs of the same; the first one only for a phase that has a message.
std::optional<HUDContent> phaseHUD(PomodoroState ended, int sessionsCompleted);
HUDContent countdownHUD(double targetSeconds);

} // namespace quillmere
