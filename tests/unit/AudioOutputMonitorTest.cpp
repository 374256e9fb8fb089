#include "monitors/AudioOutputMonitor.h"

#include "monitors/OutputSymbol.h"
#include "platform/BluetoothAddress.h"
#include "platform/Symbols.h"
#include "support/FakeAudioHardware.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct AudioOutputMonitorTest : testing::Test {
    AudioOutputMonitorTest()
    {
        monitor.onBluetoothDeviceConnected = [this](const QString &name, bool isAirPods) {
            reports.push_back(name.toStdString() + (isAirPods ? " (AirPods)" : ""));
        };
    }

    AudioDeviceID bluetooth(std::optional<QString> name)
    {
        return hardware.add({.facts = {.name = std::move(name), .isBluetooth = true}});
    }

    /// Runs what was posted and answers the reports since the last call.
    std::vector<std::string> taken()
    {
        runLoop.settle();
        return std::exchange(reports, {});
    }

    ManualRunLoop runLoop;
    FakeAudioHardware hardware;
    std::vector<std::string> reports;
    AudioDeviceID speakers = hardware.add({});
    AudioDeviceID airPods = bluetooth(QStringLiteral("AirPods Pro"));
    AudioOutputMonitor monitor{runLoop, hardware};
};

TEST_F(AudioOutputMonitorTest, ADeviceConnectedBeforeIsRememberedAndReportedOnlyWhenItComesBack)
{
    hardware.setDefault(airPods);
    monitor.start();
    EXPECT_THAT(taken(), IsEmpty());
    EXPECT_EQ(monitor.lastBluetoothDeviceID(), airPods);

    const struct {
        AudioDeviceID device;
        AudioDeviceID last;
        std::vector<std::string> reports;
    } steps[] = {
        {airPods, airPods, {}}, // told again
        {0, airPods, {}},       // nothing to decide from
        {airPods, airPods, {}},
        {speakers, 0, {}},
        {airPods, airPods, {"AirPods Pro (AirPods)"}},
        {bluetooth(std::nullopt), 3, {"Bluetooth Device"}},
        {99, 0, {}}, // gone before it could be looked at
        {3, 3, {"Bluetooth Device"}},
    };
    for (const auto &step : steps) {
        hardware.setDefault(step.device);
        EXPECT_THAT(reports, IsEmpty()) << "not from within the listener";
        EXPECT_EQ(taken(), step.reports) << step.device;
        EXPECT_EQ(monitor.lastBluetoothDeviceID(), step.last) << step.device;
    }
}

TEST_F(AudioOutputMonitorTest, WithoutADeviceTheInitialStateIsStillToCome)
{
    monitor.start();
    EXPECT_FALSE(monitor.hasSeenInitialState());
    hardware.setDefault(airPods);
    EXPECT_TRUE(monitor.hasSeenInitialState());
    EXPECT_THAT(taken(), IsEmpty());

    monitor.stop();
    hardware.setDefault(speakers);
    EXPECT_TRUE(monitor.hasSeenInitialState());
    monitor.start();
    monitor.start();
    hardware.setDefault(airPods);
    EXPECT_THAT(taken(), ElementsAre("AirPods Pro (AirPods)")); // once
}

TEST_F(AudioOutputMonitorTest, StopDropsWhatIsPosted)
{
    hardware.setDefault(speakers);
    monitor.start();
    hardware.setDefault(airPods);
    monitor.stop();
    EXPECT_THAT(taken(), IsEmpty());
    EXPECT_FALSE(hardware.hasListeners());
}

TEST_F(AudioOutputMonitorTest, ARefusedListenerIsLoggedAndLeavesItStopped)
{
    LogCapture log;
    hardware.setDefault(speakers);
    hardware.refuseListeners(-66748);
    monitor.start();
    EXPECT_FALSE(monitor.isRunning());
    EXPECT_FALSE(monitor.hasSeenInitialState());
    EXPECT_EQ(log.take(),
              QStringList(QStringLiteral(
                  "[AudioOutputMonitor] Failed to add output device listener: -66748")));
}

TEST(OutputSymbolTest, AirPodsAreFoundByName)
{
    for (const char *name : {"AirPods", "My air pods Pro", "Anna's AIRPODS Max", "Air Pods"})
        EXPECT_TRUE(isAirPodsName(QString::fromUtf8(name))) << name;
    for (const char *name : {"", "Air-Pods", "AirPad", "Pods Air"})
        EXPECT_FALSE(isAirPodsName(QString::fromUtf8(name))) << name;
    EXPECT_EQ(outputSymbol(AudioFormFactor::Speaker, true), symbols::airpods);
    EXPECT_EQ(outputSymbol(AudioFormFactor::Headset, false), symbols::headphones);
}

TEST(BluetoothAddressTest, IsFoundInWhateverIsNamedAfterIt)
{
    const std::pair<const char *, const char *> cases[] = {
        {"AA:BB:CC:DD:EE:FF", "AA:BB:CC:DD:EE:FF"},
        {"bluez_output.0a_bb_cc_dd_ee_ff.1", "0A:BB:CC:DD:EE:FF"},
        {"/org/bluez/hci0/dev_AA_BB_CC_DD_EE_FF/sep1", "AA:BB:CC:DD:EE:FF"},
        {"/org/bluez/hci0", ""},
        {"AA:BB:CC:DD:EE", ""},
        {"AA:BB:CC:DD:EE:FFF", ""},
        {"hw:0", ""},
    };
    for (const auto &[text, address] : cases)
        EXPECT_EQ(bluetoothAddressIn(QString::fromUtf8(text)).toStdString(), address) << text;
}

} // namespace
} // namespace quillmere
