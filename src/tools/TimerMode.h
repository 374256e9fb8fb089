#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <optional>

namespace quillmere {

enum class TimerMode { Countdown, Stopwatch };

inline constexpr std::array allTimerModes{TimerMode::Countdown, TimerMode::Stopwatch};

/// "countdown", "stopwatch".
constexpr QLatin1StringView timerModeName(TimerMode mode)
{
    return mode == TimerMode::Countdown ? QLatin1StringView("countdown")
                                        : QLatin1StringView("stopwatch");
}

/// Absent for any other text.
inline std::optional<TimerMode> timerModeFromName(QStringView name)
{
    for (const TimerMode mode : allTimerModes) {
        if (name == timerModeName(mode))
            return mode;
    }
    return std::nullopt;
}

} // namespace quillmere
