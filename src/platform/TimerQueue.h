#pragma once

#include "platform/Task.h"
#include "platform/Time.h"

#include <functional>
#include <memory>
#include <optional>

namespace quillmere {

/// The timers of a run loop, and the rule by which they share wake-ups. Knows no clock of its own:
/// the loop sleeps until nextWake() and then calls fireDue().
///
/// A timer may fire anywhere in [deadline, deadline + tolerance]. The next wake-up is the earliest
/// moment at which every timer that cannot wait longer fires together with all whose window has
/// opened by then; a timer alone fires at its deadline. The deadlines of a repeating timer lie on a
/// grid that begins where it first fired, so it never drifts, and timers whose intervals are
/// multiples of each other fall into step. After a stall it fires once. Main thread only.
class TimerQueue
{
public:
    TimerQueue();

    /// `interval` zero: fires once. Otherwise repeats, at most every millisecond.
    Task add(Instant deadline, Duration interval, Duration tolerance, std::function<void()> action);

    std::optional<Instant> nextWake() const;

    /// Fires everything due at `now`, in deadline order. Timers added meanwhile wait for the next
    /// call.
    void fireDue(Instant now);

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace quillmere
