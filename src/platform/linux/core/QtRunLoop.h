#pragma once

#include "platform/RunLoop.h"

#include <QObject>
#include <QSocketNotifier>
#include <QThreadPool>

#include <optional>

namespace quillmere {

/// RunLoop on the Qt event loop of the thread that creates it.
///
/// All timers share one timerfd on CLOCK_BOOTTIME: it counts suspend, so what fell due while the
/// machine slept fires when it wakes, and the program has one wake-up however many timers run.
class QtRunLoop : public RunLoop
{
public:
    QtRunLoop();
    ~QtRunLoop() override;

    Instant now() const override;
    std::chrono::system_clock::time_point wallClock() const override;
    bool isMainThread() const override;
    using RunLoop::post;
    void post(std::function<void()> action) override;
    std::unique_ptr<SerialQueue> makeSerialQueue(const QString &label) override;

protected:
    void runInBackground(std::function<void()> work) override;
    void timersChanged() override;

private:
    void wake();
    void arm();

    QObject context_; // lives on the main thread; what is posted to it dies with it
    int timer_;
    QSocketNotifier notifier_;
    std::optional<Instant> armedFor_;
    QThreadPool pool_;
};

} // namespace quillmere
