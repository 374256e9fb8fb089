#include "platform/RunLoop.h"

namespace quillmere {

QDateTime RunLoop::date() const
{
    using namespace std::chrono;
    const auto sinceEpoch = duration_cast<milliseconds>(wallClock().time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count());
}

void RunLoop::post(const Owner &owner, std::function<void()> action)
{
    post([reference = owner.reference(), action = std::move(action)] {
        if (!reference.expired())
            action();
    });
}

Task RunLoop::after(Duration delay, std::function<void()> action)
{
    auto task = timers_.add(now() + delay, Duration::zero(), Duration::zero(), std::move(action));
    timersChanged();
    return task;
}

Task RunLoop::every(Duration interval, Duration tolerance, std::function<void()> action)
{
    auto task = timers_.add(now() + interval, interval, tolerance, std::move(action));
    timersChanged();
    return task;
}

} // namespace quillmere
