#include "platform/TimerQueue.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

constexpr Duration shortestInterval = std::chrono::milliseconds(1);

struct Timer {
    Instant deadline;
    Duration interval;
    Duration tolerance;
    std::shared_ptr<std::function<void()>> action;
    bool anchored = false; // its grid is fixed
};

/// Moves the timer on to the first point of its grid after `now`. The wake-up it first fires at is
/// where the grid begins.
void advance(Timer &timer, Instant planned, Instant now)
{
    if (!std::exchange(timer.anchored, true))
        timer.deadline = std::max(timer.deadline, planned);
    const auto passed = std::max<Duration::rep>((now - timer.deadline) / timer.interval, 0) + 1;
    timer.deadline += passed * timer.interval;
}

} // namespace

struct TimerQueue::State {
    std::map<unsigned long, Timer> timers;
    unsigned long next = 0;
};

TimerQueue::TimerQueue()
    : state_(std::make_shared<State>())
{
}

Task TimerQueue::add(Instant deadline, Duration interval, Duration tolerance,
                     std::function<void()> action)
{
    const auto id = state_->next++;
    if (interval > Duration::zero())
        interval = std::max(interval, shortestInterval);
    state_->timers.emplace(id, Timer{deadline, interval, tolerance,
                                     std::make_shared<std::function<void()>>(std::move(action))});
    return Task([state = std::weak_ptr(state_), id] {
        if (const auto alive = state.lock())
            alive->timers.erase(id);
    });
}

std::optional<Instant> TimerQueue::nextWake() const
{
    if (state_->timers.empty())
        return std::nullopt;
    Instant latest = Instant::max();
    for (const auto &[id, timer] : state_->timers)
        latest = std::min(latest, timer.deadline + timer.tolerance);
    Instant wake = Instant::min();
    for (const auto &[id, timer] : state_->timers) {
        if (timer.deadline <= latest)
            wake = std::max(wake, timer.deadline);
    }
    return wake;
}

void TimerQueue::fireDue(Instant now)
{
    const auto state = state_;
    const Instant planned = std::min(nextWake().value_or(now), now);
    std::vector<std::pair<Instant, unsigned long>> due;
    for (const auto &[id, timer] : state->timers) {
        if (timer.deadline <= now)
            due.emplace_back(timer.deadline, id);
    }
    std::sort(due.begin(), due.end());
    for (const auto &entry : due) {
        const auto found = state->timers.find(entry.second);
        if (found == state->timers.end())
            continue;
        const auto action = found->second.action;
        if (found->second.interval > Duration::zero())
            advance(found->second, planned, now);
        else
            state->timers.erase(found);
        (*action)();
    }
}

} // namespace quillmere
