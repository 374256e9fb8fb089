#pragma once

#include "platform/Owner.h"
#include "platform/SerialQueue.h"
#include "platform/Task.h"
#include "platform/Time.h"
#include "platform/TimerQueue.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <type_traits>

namespace quillmere {

/// The only source of time, timers, main-thread posts and background work.
///
/// Everything runs on the main thread unless its comment says otherwise.
class RunLoop
{
public:
    RunLoop() = default;
    RunLoop(const RunLoop &) = delete;
    RunLoop &operator=(const RunLoop &) = delete;
    virtual ~RunLoop() = default;

    /// Monotonic, counts suspend. Any thread.
    virtual Instant now() const = 0;

    /// The wall clock, for times shown, stored or sent. Any thread.
    virtual std::chrono::system_clock::time_point wallClock() const = 0;

    /// The wall clock as local date and time. Any thread; costs microseconds.
    QDateTime date() const;

    virtual bool isMainThread() const = 0;

    /// Runs `action` on the main thread, after what was posted before it. Any thread.
    virtual void post(std::function<void()> action) = 0;

    /// The same, but only if the owner still lives when its turn comes. Any thread.
    void post(const Owner &owner, std::function<void()> action);

    /// Runs `action` once after `delay`. Destroying the Task cancels it.
    Task after(Duration delay, std::function<void()> action);

    /// Runs `action` every `interval`, each time up to `tolerance` late so that timers share
    /// wake-ups.
    Task every(Duration interval, Duration tolerance, std::function<void()> action);

    /// Runs `work` on a background thread, then `done` with its result on the main thread if the
    /// owner still lives. `work` must not touch the owner. Leave `done` out for work without an
    /// answer.
    template <class Work, class Done>
    void background(const Owner &owner, Work work, Done done)
    {
        runInBackground([this, owner = owner.reference(), work = std::move(work),
                         done = std::move(done)]() mutable {
            using Result = std::invoke_result_t<Work &>;
            if constexpr (std::is_void_v<Result>) {
                work();
                post([owner, done = std::move(done)]() mutable {
                    if (!owner.expired())
                        done();
                });
            } else {
                auto result = std::make_shared<Result>(work());
                post([owner, result, done = std::move(done)]() mutable {
                    if (!owner.expired())
                        done(std::move(*result));
                });
            }
        });
    }

    /// Runs `work` on a background thread.
    void background(std::function<void()> work) { runInBackground(std::move(work)); }

    /// A queue with a thread of its own while it has work. `label` names the thread.
    virtual std::unique_ptr<SerialQueue> makeSerialQueue(const QString &label) = 0;

protected:
    virtual void runInBackground(std::function<void()> work) = 0;

    /// A timer was added: the loop has to look at timers().nextWake() again.
    virtual void timersChanged() = 0;

    TimerQueue &timers() { return timers_; }
    const TimerQueue &timers() const { return timers_; }

private:
    TimerQueue timers_;
};

} // namespace quillmere
