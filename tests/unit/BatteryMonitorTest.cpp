#include "monitors/BatteryMonitor.h"

#include "monitors/BatterySymbol.h"
#include "monitors/BluetoothBatteryMonitor.h"
#include "platform/linux/power/SettlingStatus.h"
#include "support/FakeBluetoothBatteries.h"
#include "support/FakePowerSources.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr BatteryStatus onBattery(int level)
{
    return {.level = level};
}
constexpr BatteryStatus charging(int level)
{
    return {.level = level, .isCharging = true, .isPluggedIn = true};
}

struct BatteryMonitorTest : testing::Test, SettingsFixture {
    BatteryMonitorTest()
    {
        settings.lowBatteryThreshold.set(20);
        monitor.onPowerSourceChange = [this](int level, bool isCharging, bool isPluggedIn) {
            events
                << QStringLiteral("%1 %2%3").arg(level).arg(int(isPluggedIn)).arg(int(isCharging));
        };
        monitor.onLowBattery = [this](int level) { events << QStringLiteral("low %1").arg(level); };
    }

    /// What is reported when the status changes so.
    QString after(std::optional<BatteryStatus> status)
    {
        power.set(status);
        EXPECT_THAT(events, IsEmpty()) << "not from within the notification";
        runLoop.settle();
        return std::exchange(events, {}).join(QStringLiteral(", "));
    }

    ManualRunLoop runLoop;
    FakePowerSources power;
    QStringList events;
    BatteryMonitor monitor{runLoop, power, settings};
};

TEST_F(BatteryMonitorTest, WarnsOncePerDischargeAndAgainAfterTheCharger)
{
    const struct {
        double threshold;
        BatteryStatus status;
        const char *reports;
    } steps[] = {
        {20, onBattery(21), ""},        {20, onBattery(20), "low 20"},
        {20, onBattery(19), ""},        {20, charging(19), "19 11"},
        {20, charging(18), ""},         {20, onBattery(18), "18 00"}, // the level is what it was
        {20, onBattery(17), "low 17"},  {20, onBattery(21), ""}, // corrected, without a charger
        {20, onBattery(20), "low 20"},  {30, onBattery(19), ""},
        {10.9, onBattery(11), ""},      {10.9, onBattery(10), "low 10"},
        {1e300, charging(40), "40 11"}, {1e300, onBattery(39), "39 00, low 39"},
        {-0.5, onBattery(1), ""},       {-0.5, onBattery(0), "low 0"},
    };
    power.set(onBattery(22));
    monitor.start();
    for (const auto &step : steps) {
        settings.lowBatteryThreshold.set(step.threshold);
        EXPECT_EQ(after(step.status), QString::fromLatin1(step.reports))
            << step.status.level << " of " << step.threshold;
    }
}

TEST_F(BatteryMonitorTest, WhatItFindsAtFirstIsNoEvent)
{
    monitor.start();
    EXPECT_EQ(after(std::nullopt), QString());
    EXPECT_EQ(after(charging(50)), QString()) << "a battery put in";
    monitor.stop();
    for (const auto &first : {onBattery(5), charging(5)}) {
        power.set(first);
        monitor.start();
        monitor.start();
        EXPECT_EQ(after(first), QString());
        power.set({{.level = 1, .isPluggedIn = !first.isPluggedIn}});
        monitor.stop(); // drops what is still posted
        EXPECT_EQ(after(onBattery(0)), QString());
        EXPECT_FALSE(power.isWatched());
    }
}

TEST_F(BatteryMonitorTest, BluetoothDevicesWarnByTheSameRuleEachForItself)
{
    const struct {
        const char *address;
        int percent;
        const char *report;
    } steps[] = {
        {"A", 30, ""},       {"A", 20, "Pad 20"}, {"B", 15, ""}, {"A", 10, ""},
        {"B", 14, "Pad 14"}, {"B", 13, ""},       {"A", 80, ""}, {"A", 5, "Pad 5"},
    };
    FakeBluetoothBatteries batteries;
    BluetoothBatteryMonitor bluetooth(runLoop, batteries, settings);
    bluetooth.onLowBattery = [this](const QString &name, int level) {
        events << QStringLiteral("%1 %2").arg(name).arg(level);
    };
    batteries.set(QStringLiteral("C"), 1); // there before
    bluetooth.start();
    for (const auto &step : steps) {
        batteries.set(QString::fromLatin1(step.address), step.percent);
        runLoop.settle();
        EXPECT_EQ(std::exchange(events, {}).join(u','), QString::fromLatin1(step.report))
            << step.address << step.percent;
    }
    bluetooth.stop();
    EXPECT_FALSE(batteries.isWatched());
}

TEST(BatterySymbolTest, IsTheNearestQuarter)
{
    const std::pair<int, const char *> cases[] = {{-1, "battery.0"},  {12, "battery.0"},
                                                  {13, "battery.25"}, {50, "battery.50"},
                                                  {87, "battery.75"}, {88, "battery.100"}};
    for (const auto &[level, symbol] : cases)
        EXPECT_EQ(batterySymbol(level, false), QLatin1StringView(symbol)) << level;
    EXPECT_EQ(batterySymbol(0, true), QLatin1StringView("battery.100.bolt"));
}

TEST(SettlingStatusTest, APlugIsBelievedOnceItRests)
{
    ManualRunLoop runLoop;
    std::vector<BatteryStatus> seen;
    SettlingStatus *self = nullptr;
    SettlingStatus status(runLoop, [&] { seen.push_back(self->settled().value()); });
    self = &status;
    status.begin(onBattery(50));
    status.set(onBattery(51)); // a level needs no rest
    status.set({{.level = 51, .isPluggedIn = true}});
    runLoop.advance(200ms);
    status.set(charging(52));
    runLoop.advance(99ms);
    EXPECT_THAT(seen, ElementsAre(onBattery(51)));
    runLoop.advance(1ms);
    EXPECT_THAT(std::exchange(seen, {}), ElementsAre(onBattery(51), charging(52)));

    status.set(onBattery(52)); // a bad contact
    runLoop.advance(100ms);
    status.set(charging(52));
    runLoop.advance(1s);
    EXPECT_THAT(seen, IsEmpty());
    status.set(onBattery(52));
    status.begin(charging(53)); // another run of the service
    runLoop.advance(1s);
    EXPECT_THAT(seen, IsEmpty());
}

} // namespace
} // namespace quillmere
