#pragma once

#include "tools/PomodoroManager.h"

#include <QString>

#include <array>
#include <optional>

namespace quillmere {

/// `value` without its fraction; 0 for what is negative or no number.
qint64 wholeSeconds(double value);

/// The time left of a phase: "24:59", minutes with two digits at least.
QString pomodoroText(double seconds);

/// "9:05", from an hour on "1:02:03".
QString countdownText(double seconds);

/// How much of the phase under way has passed, 0..1; 0 when idle.
double pomodoroProgress(const PomodoroManager &pomodoro);

/// A work session of the round that ends with the long break.
enum class SessionDot { Open, Running, Done };
using SessionDots = std::array<SessionDot, PomodoroManager::sessionsBeforeLongBreak>;
SessionDots sessionDots(PomodoroState state, int sessionsCompleted);

/// The lengths on offer, in minutes.
inline constexpr std::array countdownPresets{1, 3, 5, 10, 15, 25, 45, 60};

/// The length that someone has typed, in seconds: minutes ("10"), a time as it is shown ("1:30",
/// "1:02:03") or parts with a unit ("1 h 30 min", "90s"). Absent unless it is one from a second to
/// a day.
std::optional<int> countdownLength(const QString &typed);

} // namespace quillmere
