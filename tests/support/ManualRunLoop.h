#pragma once

#include "platform/RunLoop.h"

#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace quillmere {

/// A SerialQueue whose work runs when its ManualRunLoop settles, or when it is drained.
class ManualSerialQueue : public SerialQueue
{
public:
    ~ManualSerialQueue() override { drain(); }

    void async(std::function<void()> work) override
    {
        const std::scoped_lock lock(mutex_);
        work_.push_back(std::move(work));
    }

    void drain() override
    {
        while (runOne()) {
        }
    }

    bool runOne()
    {
        std::function<void()> work;
        {
            const std::scoped_lock lock(mutex_);
            if (work_.empty())
                return false;
            work = std::move(work_.front());
            work_.pop_front();
        }
        work();
        return true;
    }

private:
    std::mutex mutex_;
    std::deque<std::function<void()>> work_;
};

/// A run loop whose time only moves when a test advances it. Timers fire in deadline order at the
/// moments they would fire at; posts and background work run in between, on the test's thread.
class ManualRunLoop : public RunLoop
{
public:
    /// Moves time on, firing what falls due on the way.
    void advance(Duration span)
    {
        const Instant end = now_ + span;
        settle();
        for (auto wake = timers().nextWake(); wake && *wake <= end; wake = timers().nextWake()) {
            now_ = std::max(now_, *wake);
            ++wakeUps_;
            timers().fireDue(now_);
            settle();
        }
        now_ = end;
    }

    /// The machine sleeps or stalls: time passes and nothing fires until it is over.
    void stall(Duration span)
    {
        now_ += span;
        timers().fireDue(now_);
        settle();
    }

    /// Runs what was posted and handed to the background, and what that posts in turn.
    void settle()
    {
        while (runOne()) {
        }
    }

    /// Sets the wall clock's distance from the run loop's own time.
    void setWallClock(std::chrono::system_clock::time_point time)
    {
        wallAtZero_ = time - std::chrono::duration_cast<std::chrono::system_clock::duration>(
                                 now_.time_since_epoch());
    }

    int wakeUps() const { return wakeUps_; }

    Instant now() const override { return now_; }
    std::chrono::system_clock::time_point wallClock() const override
    {
        return wallAtZero_ + std::chrono::duration_cast<std::chrono::system_clock::duration>(
                                 now_.time_since_epoch());
    }
    bool isMainThread() const override { return std::this_thread::get_id() == mainThread_; }
    using RunLoop::post;
    void post(std::function<void()> action) override
    {
        const std::scoped_lock lock(mutex_);
        posted_.push_back(std::move(action));
    }
    std::unique_ptr<SerialQueue> makeSerialQueue(const QString &) override
    {
        auto queue = std::make_shared<ManualSerialQueue>();
        queues_.push_back(queue);
        return std::make_unique<Handle>(queue);
    }

protected:
    void runInBackground(std::function<void()> work) override
    {
        const std::scoped_lock lock(mutex_);
        background_.push_back(std::move(work));
    }
    void timersChanged() override {}

private:
    struct Handle : SerialQueue {
        explicit Handle(std::shared_ptr<ManualSerialQueue> queue)
            : queue_(std::move(queue))
        {
        }
        void async(std::function<void()> work) override { queue_->async(std::move(work)); }
        void drain() override { queue_->drain(); }
        std::shared_ptr<ManualSerialQueue> queue_;
    };

    bool runOne()
    {
        if (runFirst(posted_) || runFirst(background_))
            return true;
        for (const auto &queue : std::vector(queues_)) {
            if (const auto alive = queue.lock(); alive && alive->runOne())
                return true;
        }
        return false;
    }

    bool runFirst(std::deque<std::function<void()>> &pending)
    {
        std::function<void()> action;
        {
            const std::scoped_lock lock(mutex_);
            if (pending.empty())
                return false;
            action = std::move(pending.front());
            pending.pop_front();
        }
        action();
        return true;
    }

    Instant now_{std::chrono::hours(1)};
    std::chrono::system_clock::time_point wallAtZero_{std::chrono::hours(24 * 365 * 56)};
    std::thread::id mainThread_ = std::this_thread::get_id();
    int wakeUps_ = 0;
    std::mutex mutex_;
    std::deque<std::function<void()>> posted_;
    std::deque<std::function<void()>> background_;
    std::vector<std::weak_ptr<ManualSerialQueue>> queues_;
};

} // namespace quillmere
