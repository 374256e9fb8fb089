#include "monitors/SystemMonitor.h"

#include "support/FakeHostStatistics.h"
#include "support/ManualRunLoop.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::SizeIs;

constexpr std::uint64_t GB = 1ULL << 30;

TEST(SystemMonitorTest, LoadIsWhatWasNotIdleSinceTheFormerSample)
{
    const struct {
        std::optional<ProcessorTicks> ticks;
        double load;
    } samples[] = {
        {{{.user = 20, .system = 4, .idle = 75, .nice = 1}}, 25}, // since the machine started
        {{{.user = 20, .system = 4, .idle = 75, .nice = 1}}, 0},  // no time passed
        {std::nullopt, 0},
        {{{.user = 30, .system = 14, .idle = 115, .nice = 41}}, 60},
        {{{.user = 40, .system = 14, .idle = 110, .nice = 46}}, 100}, // idle time stepped back
        {{{.user = 1, .system = 1, .idle = 1, .nice = 1}}, 0},        // everything did
        {{{.user = 1, .system = 1, .idle = 101, .nice = 1}}, 0},
    };
    ProcessorLoad load;
    for (const auto &sample : samples)
        EXPECT_DOUBLE_EQ(load.sample(sample.ticks), sample.load) << &sample - samples;
}

TEST(SystemMonitorTest, MemoryAndDiskInPercentAndGB)
{
    const struct {
        std::optional<std::uint64_t> used;
        std::uint64_t physical;
        FileSystemSize disk;
        SystemStats stats;
    } cases[] = {
        {6 * GB, 16 * GB, {100 * GB, 25 * GB}, {0, 37.5, 6, 16, 75, 75, 100}},
        {std::nullopt, 16 * GB, {100 * GB, {}}, {0, 0, 0, 16, 0, 0, 0}},
        {17 * GB, 16 * GB, {{}, 25 * GB}, {0, 100, 17, 16, 0, 0, 0}},
        {6 * GB, 0, {0, 0}, {0, 0, 6, 0, 0, 0, 0}},
    };
    for (const auto &each : cases) {
        FakeHostStatistics host;
        host.used = each.used;
        host.physical = each.physical;
        host.disk = each.disk;
        ProcessorLoad load;
        EXPECT_EQ(sampleStats(host, load), each.stats) << &each - cases;
    }
}

TEST(SystemMonitorTest, SamplesEveryThreeSecondsUntilStopped)
{
    ManualRunLoop runLoop;
    FakeHostStatistics host;
    SystemMonitor monitor(runLoop, host);
    std::vector<double> loads;
    monitor.onStatsUpdate = [&](const SystemStats &stats) { loads.push_back(stats.cpuUsage); };
    host.ticks = {.user = 50, .idle = 50};
    monitor.start();
    monitor.start();
    runLoop.advance(2900ms);
    EXPECT_THAT(loads, SizeIs(0));
    runLoop.advance(700ms);
    host.ticks = {.user = 60, .idle = 80};
    runLoop.advance(3s);
    EXPECT_THAT(loads, ElementsAre(50, 25));
    monitor.stop();
    runLoop.advance(10s);
    monitor.start(); // anew, from the average
    runLoop.advance(3500ms);
    EXPECT_THAT(loads, ElementsAre(50, 25, testing::DoubleNear(60 / 1.4, 1e-9)));
    EXPECT_EQ(runLoop.wakeUps(), 3);
}

} // namespace
} // namespace quillmere
