#include "monitors/VolumeMonitor.h"

#include "support/FakeAudioHardware.h"
#include "support/ManualRunLoop.h"

#include <gmock/gmock.h>

#include <QStringList>

#include <utility>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using enum AudioProperty;

QStringList criticalLines;

struct VolumeMonitorTest : testing::Test {
    VolumeMonitorTest()
    {
        criticalLines.clear();
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtCriticalMsg)
                criticalLines << text;
        });
        monitor.onVolumeChange = [this](double percent) { reports.push_back(percent); };
    }
    ~VolumeMonitorTest() override { qInstallMessageHandler(nullptr); }

    AudioDeviceID startOn(FakeAudioHardware::Device device)
    {
        const AudioDeviceID id = hardware.add(std::move(device));
        hardware.setDefault(id);
        monitor.start();
        return id;
    }

    /// Runs what was posted and answers the reports since the last call.
    std::vector<double> taken()
    {
        runLoop.settle();
        return std::exchange(reports, {});
    }

    ManualRunLoop runLoop;
    FakeAudioHardware hardware;
    std::vector<double> reports;
    VolumeMonitor monitor{runLoop, hardware};
};

TEST_F(VolumeMonitorTest, ReportsEveryChangeFromTheMainQueueButNotTheLevelAtStart)
{
    const auto speakers = startOn({.mainVolume = 0.5F});
    monitor.start();
    EXPECT_THAT(taken(), IsEmpty());

    hardware.change(speakers, VirtualMainVolume, 0.33F);
    hardware.change(speakers, VirtualMainVolume, 0.66F);
    hardware.change(speakers, VirtualMainVolume, 0.66F);
    EXPECT_THAT(reports, IsEmpty());
    EXPECT_THAT(taken(), ElementsAre(33.0, 66.0, 66.0)); // exact: symbols switch at 33 and 66
}

TEST_F(VolumeMonitorTest, WithoutADefaultDeviceItLogsAndStaysStoppedUntilStartedAgain)
{
    monitor.start();
    EXPECT_EQ(criticalLines, QStringList(u"Failed to get default output device"_s));
    EXPECT_FALSE(monitor.isRunning());
    EXPECT_FALSE(hardware.hasListeners());

    const auto speakers = hardware.add({.mainVolume = 0.2F});
    hardware.setDefault(speakers);
    EXPECT_THAT(taken(), IsEmpty());
    monitor.start();
    EXPECT_TRUE(monitor.isRunning());
    EXPECT_EQ(monitor.audioDeviceID(), speakers);
    EXPECT_EQ(criticalLines.size(), 1);
}

TEST_F(VolumeMonitorTest, CurrentVolumePrefersTheMainVolume)
{
    struct {
        FakeAudioHardware::Device device;
        std::optional<double> percent;
    } const cases[] = {
        {{.mainVolume = 0.25F, .scalar = 0.75F}, 25},
        {{.scalar = 0.75F}, 75},
        {{.mainVolume = 0.0F}, 0},
        {{.mainVolume = 1.0F}, 100},
        {{}, std::nullopt},
    };
    for (const auto &each : cases) {
        startOn(each.device);
        EXPECT_EQ(monitor.currentVolume(), each.percent);
        monitor.stop();
        EXPECT_EQ(monitor.currentVolume(), std::nullopt);
    }
}

TEST_F(VolumeMonitorTest, FollowsTheDefaultDeviceAndReportsItsLevel)
{
    const auto speakers = startOn({.mainVolume = 0.5F});
    monitor.adjustByScroll(5);
    const auto headphones = hardware.add({.mainVolume = 0.25F});
    hardware.setDefault(headphones);
    EXPECT_THAT(taken(), ElementsAre(25)) << "a scroll is over with its device";
    EXPECT_EQ(monitor.audioDeviceID(), headphones);

    hardware.change(speakers, VirtualMainVolume, 0.75F);
    EXPECT_THAT(taken(), IsEmpty());
    hardware.change(headphones, VirtualMainVolume, 0.5F);
    EXPECT_THAT(taken(), ElementsAre(50));

    hardware.remove(headphones);
    hardware.setDefault(0);
    EXPECT_THAT(taken(), IsEmpty());
    EXPECT_EQ(monitor.audioDeviceID(), 0U);
    EXPECT_TRUE(monitor.isRunning());
    EXPECT_EQ(monitor.adjustByScroll(1), std::nullopt);
    EXPECT_THAT(criticalLines, IsEmpty());
    const auto scalarOnly = hardware.add({.scalar = 0.5F});
    hardware.setDefault(scalarOnly);
    EXPECT_THAT(taken(), ElementsAre(50));
    hardware.change(scalarOnly, VolumeScalar, 0.75F);
    EXPECT_THAT(taken(), ElementsAre(75));
}

TEST_F(VolumeMonitorTest, StopDropsListenersAndReportsStillPosted)
{
    const auto speakers = startOn({.mainVolume = 0.5F});
    const auto headphones = hardware.add({.mainVolume = 0.25F});
    hardware.change(speakers, VirtualMainVolume, 0.75F);
    hardware.setDefault(headphones);
    monitor.stop();
    monitor.stop();
    EXPECT_FALSE(hardware.hasListeners());
    monitor.start(); // what was posted for the run before must not reach this one
    EXPECT_THAT(taken(), IsEmpty());
    EXPECT_EQ(monitor.audioDeviceID(), headphones);
}

TEST_F(VolumeMonitorTest, ScrollStepsAddUpAndTheirEchoIsNotReported)
{
    const auto speakers = startOn({.mainVolume = 0.5F});
    EXPECT_EQ(monitor.adjustByScroll(1), 52.0);
    hardware.change(speakers, VirtualMainVolume, 0.5F); // late news of before the step
    EXPECT_EQ(monitor.adjustByScroll(2.5), 57.0);
    runLoop.advance(250ms);
    EXPECT_EQ(monitor.adjustByScroll(-1), 55.0);
    runLoop.advance(250ms); // each step starts the wait anew
    EXPECT_TRUE(monitor.isScrollAdjusting());
    hardware.tellOwnChanges();
    EXPECT_THAT(taken(), IsEmpty());
    EXPECT_THAT(hardware.writes(), ElementsAre(FakeAudioHardware::Write{speakers, 0.52F},
                                               FakeAudioHardware::Write{speakers, 0.57F},
                                               FakeAudioHardware::Write{speakers, 0.55F}));

    runLoop.advance(50ms);
    EXPECT_FALSE(monitor.isScrollAdjusting());
    hardware.change(speakers, VirtualMainVolume, 0.25F);
    EXPECT_THAT(taken(), ElementsAre(25));
    EXPECT_EQ(monitor.adjustByScroll(1), 27.0);
}

TEST_F(VolumeMonitorTest, ScrollingStaysWithinTheScaleAndAwayFromAbsentVolumes)
{
    const double huge = 1e300;
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(monitor.adjustByScroll(1), std::nullopt);
    startOn({.mainVolume = 0.5F});
    EXPECT_EQ(monitor.adjustByScroll(endless), std::nullopt);
    EXPECT_EQ(monitor.adjustByScroll(std::nan("")), std::nullopt);
    EXPECT_FALSE(monitor.isScrollAdjusting());
    EXPECT_EQ(monitor.adjustByScroll(huge), 100.0);
    EXPECT_EQ(monitor.adjustByScroll(-huge), 0.0);

    monitor.stop();
    EXPECT_FALSE(monitor.isScrollAdjusting());
    startOn({});
    EXPECT_EQ(monitor.adjustByScroll(1), std::nullopt);
}

} // namespace
} // namespace quillmere
