#include "platform/RunLoop.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/ManualRunLoop.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace quillmere;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The two implementations behind one face, so that every case below runs against both.
struct Subject {
    virtual ~Subject() = default;
    virtual RunLoop &loop() = 0;
    /// Lets the loop run until `done` holds; false when it still doesn't after `limit`.
    virtual bool runUntil(const std::function<bool()> &done, Duration limit = 10s) = 0;
    virtual void stall(Duration span) = 0;
};

struct ManualSubject : Subject {
    RunLoop &loop() override { return manual; }
    bool runUntil(const std::function<bool()> &done, Duration limit) override
    {
        manual.settle();
        for (Duration passed{}; !done() && passed < limit; passed += 1ms)
            manual.advance(1ms);
        return done();
    }
    void stall(Duration span) override { manual.stall(span); }
    ManualRunLoop manual;
};

struct QtSubject : Subject {
    RunLoop &loop() override { return qt; }
    bool runUntil(const std::function<bool()> &done, Duration limit) override
    {
        const Instant end = qt.now() + limit;
        const Task alarm =
            qt.every(20ms, 0ms, [] {}); // so that waiting for events can't last for ever
        while (!done() && qt.now() < end)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return done();
    }
    void stall(Duration span) override
    {
        const Instant end = qt.now() + span;
        while (qt.now() < end) {
        }
    }
    int argc = 1;
    char name[5] = "test";
    char *argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    QtRunLoop qt;
};

class RunLoopTest : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        if (GetParam())
            subject = std::make_unique<QtSubject>();
        else
            subject = std::make_unique<ManualSubject>();
    }
    RunLoop &loop() { return subject->loop(); }
    std::unique_ptr<Subject> subject;
};

TEST_P(RunLoopTest, DelayedActionsRunInDeadlineOrderAndOnce)
{
    std::vector<int> order;
    // Far enough apart that a busy machine does not get between the lines.
    const Task late = loop().after(400ms, [&] { order.push_back(3); });
    const Task early = loop().after(5ms, [&] { order.push_back(1); });
    const Task middle = loop().after(200ms, [&] { order.push_back(2); });
    ASSERT_TRUE(subject->runUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
    bool later = false;
    const Task end = loop().after(60ms, [&] { later = true; });
    ASSERT_TRUE(subject->runUntil([&] { return later; }));
    EXPECT_EQ(order.size(), 3U);
}

TEST_P(RunLoopTest, DestroyedReplacedAndSelfCancelledTasksStayQuiet)
{
    int destroyed = 0;
    int replaced = 0;
    int repeated = 0;
    {
        const Task gone = loop().after(5ms, [&] { ++destroyed; });
    }
    Task slot = loop().after(5ms, [&] { ++replaced; });
    slot = loop().after(6ms, [&] { replaced += 10; });
    Task repeating;
    repeating = loop().every(4ms, 0ms, [&] {
        if (++repeated == 2)
            repeating.cancel();
    });
    int sameMoment = 0;
    Task second;
    const Task first = loop().after(10ms, [&] { second.cancel(); });
    second = loop().after(10ms, [&] { ++sameMoment; });
    ASSERT_TRUE(subject->runUntil([&] { return repeated == 2; }));
    bool end = false;
    const Task last = loop().after(50ms, [&] { end = true; });
    ASSERT_TRUE(subject->runUntil([&] { return end; }));
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(sameMoment, 0);
    EXPECT_EQ(replaced, 10);
    EXPECT_EQ(repeated, 2);
}

TEST_P(RunLoopTest, AfterAStallARepeatingTimerFiresOnce)
{
    int fired = 0;
    const Task repeating = loop().every(100ms, 0ms, [&] { ++fired; });
    subject->stall(560ms);
    ASSERT_TRUE(subject->runUntil([&] { return fired > 0; }));
    EXPECT_EQ(fired, 1);
}

TEST_P(RunLoopTest, PostsKeepTheirOrderAndDieWithTheirOwner)
{
    std::vector<int> order;
    auto owner = std::make_unique<Owner>();
    loop().post([&] { order.push_back(1); });
    loop().post(*owner, [&] { order.push_back(99); });
    loop().post([&] { order.push_back(2); });
    owner.reset();
    EXPECT_TRUE(order.empty()) << "a post never runs inside post()";
    ASSERT_TRUE(subject->runUntil([&] { return order.size() >= 2; }));
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_P(RunLoopTest, AnotherThreadReachesTheMainThreadByPosting)
{
    std::atomic<bool> offMain = true;
    bool arrived = false;
    bool onMain = false;
    std::thread other([&] {
        offMain = !loop().isMainThread();
        loop().post([&] {
            onMain = loop().isMainThread();
            arrived = true;
        });
    });
    other.join();
    EXPECT_FALSE(arrived) << "it ran on the other thread";
    ASSERT_TRUE(subject->runUntil([&] { return arrived; }));
    EXPECT_TRUE(offMain);
    EXPECT_TRUE(onMain);
}

TEST_P(RunLoopTest, BackgroundResultsComeBackOnlyToLivingOwners)
{
    int result = 0;
    bool orphan = false;
    const Owner alive;
    {
        const Owner dead;
        loop().background(
            dead, [] { return 1; }, [&](int) { orphan = true; });
    }
    loop().background(
        alive, [] { return 7; },
        [&](int value) {
            EXPECT_TRUE(loop().isMainThread());
            result = value;
        });
    ASSERT_TRUE(subject->runUntil([&] { return result == 7; }));
    bool done = false;
    loop().background(
        alive, [] {}, [&] { done = true; });
    ASSERT_TRUE(subject->runUntil([&] { return done; }));
    EXPECT_FALSE(orphan);
}

TEST_P(RunLoopTest, ASerialQueueKeepsOrderAndFinishesBeforeItIsGone)
{
    std::vector<int> order;
    {
        const auto queue = loop().makeSerialQueue(u"test"_s);
        for (int i = 0; i < 100; ++i)
            queue->async([&order, i] { order.push_back(i); });
    }
    subject->runUntil([&] { return order.size() == 100; });
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

INSTANTIATE_TEST_SUITE_P(Both, RunLoopTest, testing::Values(false, true),
                         [](const auto &info) { return info.param ? "Qt" : "Manual"; });

TEST(TimerCoalescing, TimersWithOverlappingWindowsShareWakeUpsWithinTheirTolerance)
{
    struct Timer {
        Duration interval;
        Duration tolerance;
    };
    const struct {
        std::vector<Timer> timers;
        int wakeUpsPerMinute; // at most
    } cases[] = {
        {{{200ms, 50ms}}, 300},
        {{{200ms, 50ms}, {1s, 100ms}, {3s, 500ms}}, 301},
        {{{200ms, 50ms}, {250ms, 50ms}}, 480},
    };
    for (const auto &[timers, wakeUpsPerMinute] : cases) {
        ManualRunLoop loop;
        std::vector<Task> tasks;
        for (const Timer &timer : timers) {
            loop.advance(37ms); // timers start when their features do, not together
            tasks.push_back(loop.every(timer.interval, timer.tolerance,
                                       [&loop, timer, last = loop.now()]() mutable {
                                           const Duration gap = loop.now() - last;
                                           EXPECT_GE(gap, timer.interval - timer.tolerance);
                                           EXPECT_LE(gap, timer.interval + timer.tolerance);
                                           last = loop.now();
                                       }));
        }
        const int before = loop.wakeUps();
        loop.advance(60s);
        EXPECT_LE(loop.wakeUps() - before, wakeUpsPerMinute);
    }
}

} // namespace
