#pragma once

#include <chrono>

namespace quillmere {

/// A span of time.
using Duration = std::chrono::nanoseconds;

/// The clock of RunLoop::now(): monotonic, counts time spent suspended, blind to changes of the
/// wall clock. It has no now() of its own, so only a run loop can tell the time.
struct BootClock {
    using duration = Duration;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<BootClock>;
    static constexpr bool is_steady = true;
};
using Instant = BootClock::time_point;

/// Seconds as a Duration, saturated to [0, 10 years]; NaN is 0. Settings edited by hand reach
/// timers through this, so no number can overflow one.
constexpr Duration seconds(double value)
{
    constexpr double longest = 10.0 * 365 * 86400;
    if (!(value > 0))
        return Duration::zero();
    return Duration(static_cast<Duration::rep>((value < longest ? value : longest) * 1e9));
}

constexpr double toSeconds(Duration span)
{
    return static_cast<double>(span.count()) / 1e9;
}

} // namespace quillmere
