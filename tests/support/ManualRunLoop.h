#pragma once

#include "platform/RunLoop.h"

#include <algorithm>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace quillmere {

/// Work that waits for the test, put in by any thread.
class ManualWork
{
public:
    void put(std::function<void()> work)
    {
        const std::scoped_lock lock(mutex_);
        work_.push_back(std::move(work));
    }
    bool runOne()
    {
        std::unique_lock lock(mutex_);
        if (work_.empty())
            return false;
        const auto work = std::move(work_.front());
        work_.pop_front();
        lock.unlock();
        work();
        return true;
    }

private:
    std::mutex mutex_;
    std::deque<std::function<void()>> work_;
};

/// A SerialQueue whose work runs when its ManualRunLoop settles, or when it is drained.
class ManualSerialQueue : public SerialQueue
{
public:
    explicit ManualSerialQueue(std::shared_ptr<ManualWork> work)
        : work_(std::move(work))
    {
    }
    ~ManualSerialQueue() override { ManualSerialQueue::drain(); }
    void async(std::function<void()> work) override { work_->put(std::move(work)); }
    void drain() override
    {
        while (work_->runOne()) {
        }
    }

private:
    std::shared_ptr<ManualWork> work_;
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
    void post(std::function<void()> action) override { posted_.put(std::move(action)); }
    std::unique_ptr<SerialQueue> makeSerialQueue(const QString &) override
    {
        queues_.push_back(std::make_shared<ManualWork>());
        return std::make_unique<ManualSerialQueue>(queues_.back());
    }

protected:
    void runInBackground(std::function<void()> work) override { background_.put(std::move(work)); }
    void timersChanged() override {}

private:
    bool runOne()
    {
        const auto queues = queues_; // work may make another
        return posted_.runOne() || background_.runOne() ||
               std::any_of(queues.begin(), queues.end(),
                           [](const auto &queue) { return queue->runOne(); });
    }

    Instant now_{std::chrono::hours(1)};
    std::chrono::system_clock::time_point wallAtZero_{std::chrono::hours(24 * 365 * 56)};
    std::thread::id mainThread_ = std::this_thread::get_id();
    int wakeUps_ = 0;
    ManualWork posted_;
    ManualWork background_;
    std::vector<std::shared_ptr<ManualWork>> queues_;
};

} // namespace quillmere
