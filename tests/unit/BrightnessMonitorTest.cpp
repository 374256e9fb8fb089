#include "monitors/BrightnessMonitor.h"

#include "support/FakeDisplayBrightness.h"
#include "support/ManualRunLoop.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

struct BrightnessMonitorTest : testing::Test {
    BrightnessMonitorTest()
    {
        monitor.onBrightnessChange = [this](double percent) { steps.push_back(percent); };
        monitor.onAutoBrightnessChange = [this](double percent) { drifts.push_back(percent); };
    }

    void appear(std::optional<double> level)
    {
        display.level = level;
        display.setAvailable(true);
    }

    ManualRunLoop runLoop;
    FakeDisplayBrightness display;
    std::vector<double> steps;
    std::vector<double> drifts;
    BrightnessMonitor monitor{runLoop, display};
};

TEST_F(BrightnessMonitorTest, TellsStepsFromDriftAndNoiseFromBoth)
{
    enum Report { None, Step, Drift };
    struct {
        double from;
        double to;
        Report report;
    } const cases[] = {
        {0.5, 0.5004, None}, {0.5, 0.5006, Drift}, {0.5, 0.5625, Step}, {0.5625, 0.5, Step},
        {0.5, 0.53, Step},   {0.5, 0.5299, Drift}, {0.5, 0.47, Step},   {0, 1, Step},
        {0.0004, 0.0, None}, {1, 0.9995, None},    {1, 0.9994, Drift},
    };
    for (const auto &each : cases) {
        display.level = each.from;
        display.setAvailable(true);
        monitor.start();
        display.level = each.to;
        runLoop.advance(1s);
        EXPECT_EQ(std::exchange(steps, {}),
                  each.report == Step ? std::vector{each.to * 100} : std::vector<double>())
            << each.from << " to " << each.to;
        EXPECT_EQ(std::exchange(drifts, {}),
                  each.report == Drift ? std::vector{each.to * 100} : std::vector<double>())
            << each.from << " to " << each.to;
        monitor.stop();
    }
}

TEST_F(BrightnessMonitorTest, IgnoredChangesAddUpFromTheLastReport)
{
    appear(0.5);
    monitor.start();
    for (int poll = 1; poll <= 10; ++poll) {
        display.level = 0.5 + poll * 0.0004;
        runLoop.advance(250ms);
    }
    EXPECT_THAT(drifts, ElementsAre(DoubleNear(50.08, 1e-9), DoubleNear(50.16, 1e-9),
                                    DoubleNear(50.28, 1e-9), DoubleNear(50.36, 1e-9)));
    display.level = std::nullopt;
    runLoop.advance(1s);
    display.level = 0.6;
    runLoop.advance(1s);
    EXPECT_THAT(steps, ElementsAre(60)) << "the last value stays while none can be read";
}

TEST_F(BrightnessMonitorTest, SleepsWithoutADisplayAndStartsFromTheLevelItAppearsWith)
{
    monitor.start();
    runLoop.advance(1h);
    EXPECT_EQ(runLoop.wakeUps(), 0);
    appear(0.2);
    runLoop.advance(2s);
    EXPECT_EQ(runLoop.wakeUps(), 10);
    EXPECT_EQ(monitor.lastBrightness(), 0.2);
    display.setAvailable(false);
    runLoop.advance(1h);
    EXPECT_EQ(runLoop.wakeUps(), 10);
    appear(0.9); // another display, or one that was changed while it was away
    runLoop.advance(1s);
    EXPECT_THAT(steps, IsEmpty());
    EXPECT_THAT(drifts, IsEmpty());
    display.level = 1;
    runLoop.advance(1s);
    EXPECT_THAT(steps, ElementsAre(100));
}

TEST_F(BrightnessMonitorTest, ALevelThatOnlyTurnsUpLaterIsNoStep)
{
    appear(std::nullopt);
    monitor.start();
    display.level = 0.7;
    runLoop.advance(1s);
    EXPECT_THAT(drifts, ElementsAre(70));
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(BrightnessMonitorTest, NothingIsReportedAfterTheStop)
{
    appear(0.5);
    // Stopping from within a report of the same moment, and starting again at once.
    monitor.onBrightnessChange = [this](double) { FAIL() << "reported after the stop"; };
    monitor.start();
    const Task stop = runLoop.every(200ms, 0ms, [this] {
        monitor.stop();
        monitor.start();
    });
    display.level = 0.9;
    runLoop.advance(200ms);
    monitor.stop();
    const int reads = display.reads;
    display.setAvailable(false);
    display.setAvailable(true);
    runLoop.advance(0ms);
    EXPECT_EQ(display.reads, reads);
    EXPECT_FALSE(monitor.isRunning());
}

} // namespace
} // namespace quillmere
