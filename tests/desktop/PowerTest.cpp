#include "platform/linux/power/PowerProfiles.h"
#include "platform/linux/power/UPowerSources.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/LogCapture.h"
#include "support/MockService.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using testing::ElementsAre;

struct PowerTest : ServiceTest {
    void startUPower(int type, int state, double percentage)
    {
        uPower.start(QStringLiteral("upower"));
        set({{QStringLiteral("Type"), QVariant::fromValue(uint(type))},
             {QStringLiteral("State"), QVariant::fromValue(uint(state))},
             {QStringLiteral("Percentage"), percentage},
             {QStringLiteral("IsPresent"), true}});
    }
    void set(const QVariantMap &properties) { uPower.update(displayDevice, device, properties); }
    void plug(bool in)
    {
        uPower.update(root, daemon, {{QStringLiteral("OnBattery"), !in}});
        set({{QStringLiteral("State"), QVariant::fromValue(uint(in ? 1 : 2))}});
    }
    bool waitFor(std::optional<BatteryStatus> status)
    {
        return eventually([&] { return power->isAvailable() && power->status() == status; });
    }

    const QString daemon = QStringLiteral("org.freedesktop.UPower");
    const QString device = daemon + QStringLiteral(".Device");
    const QString root = QStringLiteral("/org/freedesktop/UPower");
    const QString displayDevice = root + QStringLiteral("/devices/DisplayDevice");
    MockService uPower{bus, daemon, root};
    QtRunLoop runLoop;
    const std::function<QDBusConnection()> open = [this] { return bus.connect(); };
    std::unique_ptr<UPowerSources> power = std::make_unique<UPowerSources>(runLoop, open);
};

TEST_F(PowerTest, FollowsUPowerThroughItsLife)
{
    QStringList heard;
    const Task changes = power->onChanged([&] {
        const auto status = power->status().value_or(BatteryStatus{.level = -1});
        heard << QStringLiteral("%1 %2%3")
                     .arg(status.level)
                     .arg(int(status.isPluggedIn))
                     .arg(int(status.isCharging));
    });
    const Task availability = power->onAvailabilityChanged([&](bool available) {
        heard << (available ? QStringLiteral("on") : QStringLiteral("off"));
    });
    startUPower(2, 4, 99.6); // comes late
    EXPECT_TRUE(waitFor({{.level = 100, .isPluggedIn = true}}));
    heard.clear(); // it was seen while it was set up

    plug(false);
    EXPECT_TRUE(waitFor({{.level = 100}}));
    set({{QStringLiteral("Percentage"), 20.4}});
    EXPECT_TRUE(waitFor({{.level = 20}}));
    LogCapture log;
    set({{QStringLiteral("Percentage"), QStringLiteral("full")}});
    set({{QStringLiteral("Percentage"), 1e9}});
    set({{QStringLiteral("State"), QVariantList{1, 2}}});
    set({{QStringLiteral("Percentage"), 19.5}});
    plug(true);
    EXPECT_TRUE(waitFor({{.level = 20, .isCharging = true, .isPluggedIn = true}}));
    EXPECT_EQ(log.take().size(), 3);
    EXPECT_EQ(heard.join(u','), QStringLiteral("100 00,20 00,20 11")) << "one report for a plug";

    set({{QStringLiteral("IsPresent"), false}}); // taken out
    EXPECT_TRUE(waitFor(std::nullopt));
    heard.clear();
    uPower.stop();
    EXPECT_TRUE(eventually([&] { return !power->isAvailable(); }));
    startUPower(3, 2, 50); // of a UPS
    EXPECT_TRUE(waitFor(std::nullopt));
    EXPECT_EQ(heard.count(QStringLiteral("on")), 1);
    power.reset();
}

TEST_F(PowerTest, PowerProfilesAreFollowedUnderTheirOldName)
{
    const QString name = QStringLiteral("net.hadess.PowerProfiles");
    const QString path = QStringLiteral("/net/hadess/PowerProfiles");
    MockService service{bus, name, path};
    PowerProfiles mode(runLoop, open);
    std::vector<bool> changes;
    const Task task = mode.onChanged([&](bool isOn) { changes.push_back(isOn); });
    const auto choose = [&](const QVariant &profile) {
        service.update(path, name, {{QStringLiteral("ActiveProfile"), profile}});
    };
    const auto waitFor = [&](bool isOn) { return eventually([&] { return mode.isOn() == isOn; }); };

    service.start(QStringLiteral("power_profiles_daemon"));
    EXPECT_TRUE(waitFor(false));
    choose(QStringLiteral("performance"));
    choose(QStringLiteral("power-saver"));
    EXPECT_TRUE(waitFor(true));
    service.stop();
    service.start(QStringLiteral("power_profiles_daemon")); // with "balanced"
    EXPECT_TRUE(waitFor(false));
    choose(7);
    choose(QStringLiteral("power-saver"));
    EXPECT_TRUE(waitFor(true));
    EXPECT_THAT(changes, ElementsAre(true, false, true));
}

} // namespace
} // namespace quillmere
