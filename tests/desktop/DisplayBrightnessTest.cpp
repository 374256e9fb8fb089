#include "platform/linux/display/LinuxDisplayBrightness.h"

#include "monitors/BrightnessMonitor.h"
#include "support/Eventually.h"
#include "support/RealFiles.h"

#include <QProcess>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <umockdev.h>
#include <unistd.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// A /sys of its own, with the events of a real one.
class DisplayBrightnessTest : public RealFiles
{
protected:
    void TearDown() override
    {
        siginfo_t child;
        EXPECT_TRUE(eventually([&child] {
            return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT | __WALL) < 0;
        })) << "a helper outlived what it was for";
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        g_object_unref(testbed_);
    }

    void addBacklight(const char *name, const char *type, const char *brightness,
                      const char *maximum)
    {
        const char *attributes[] = {
            "type",           type,    "brightness", brightness, "actual_brightness", "0",
            "max_brightness", maximum, nullptr};
        const char *properties[] = {nullptr};
        g_free(umockdev_testbed_add_devicev(testbed_, "backlight", name, nullptr,
                                            const_cast<char **>(attributes),
                                            const_cast<char **>(properties)));
    }

    static QString devicePath(const QString &name) { return u"/sys/devices/"_s + name; }

    void tell(const QString &name, const char *action)
    {
        umockdev_testbed_uevent(testbed_, qPrintable(devicePath(name)), action);
    }

    /// In place, as the kernel does it: the open file has the new level.
    static void setLevel(const QString &name, const char *brightness)
    {
        QFile file(devicePath(name) + u"/brightness"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(brightness);
    }

    bool eventually(const std::function<bool()> &condition)
    {
        return quillmere::eventually(condition, [this] { loop.settle(); });
    }

    /// A display bus that may be used, and a helper that runs `script`.
    LinuxDisplayBrightness::Places placesWithHelper(const QByteArray &script)
    {
        write(u"i2c-3"_s, {});
        // A new file each time: the shell of the one before may still be reading.
        replace(u"helper"_s, "#!/bin/sh\n" + script);
        ::chmod(qPrintable(path(u"helper"_s)), 0700);
        return {.devicesRoot = directory.path(), .ddcHelper = path(u"helper"_s)};
    }

    UMockdevTestbed *testbed_ = umockdev_testbed_new();
};

TEST_F(DisplayBrightnessTest, ChoosesThePanelsOwnBacklight)
{
    struct Device {
        const char *name, *type, *brightness, *maximum;
    };
    // Each is better than all before it, so they are added one by one.
    const std::pair<Device, double> cases[] = {
        {{"z_unknown", "strange", "1", "10"}, 0.1},   {{"y_raw", "raw", "300", "1000"}, 0.3},
        {{"x_raw", "raw", "12000", "1000"}, 1.0},     {{"w_platform", "platform", "0", "7"}, 0.0},
        {{"v_firmware", "firmware", "5", "10"}, 0.5}, {{"a_broken", "firmware", "5", "0"}, 0.5},
    };
    EXPECT_FALSE(Backlight::find(u"/sys"_s));
    for (const auto &[device, level] : cases) {
        addBacklight(device.name, device.type, device.brightness, device.maximum);
        const auto found = Backlight::find(u"/sys"_s);
        ASSERT_TRUE(found) << device.name;
        EXPECT_EQ(found->level(), level) << device.name;
    }
}

TEST_F(DisplayBrightnessTest, FollowsABacklightThatIsSetGoesAndComesBack)
{
    LinuxDisplayBrightness display(loop, {});
    BrightnessMonitor monitor(loop, display);
    std::vector<double> steps;
    monitor.onBrightnessChange = [&steps](double percent) { steps.push_back(percent); };
    monitor.start();
    advance(1s);
    EXPECT_FALSE(display.isAvailable());
    EXPECT_EQ(loop.wakeUps(), 0);

    addBacklight("panel", "raw", "400", "1000");
    tell(u"panel"_s, "add");
    ASSERT_TRUE(eventually([&display] { return display.isAvailable(); }));
    setLevel(u"panel"_s, "450");
    advance(1s);
    EXPECT_THAT(steps, ElementsAre(45));

    tell(u"panel"_s, "remove");
    umockdev_testbed_remove_device(testbed_, qPrintable(devicePath(u"panel"_s)));
    ASSERT_TRUE(eventually([&display] { return !display.isAvailable(); }));
    EXPECT_EQ(display.brightness(), std::nullopt);
    addBacklight("panel", "raw", "900", "1000");
    tell(u"panel"_s, "add");
    ASSERT_TRUE(eventually([&display] { return display.isAvailable(); }));
    setLevel(u"panel"_s, "1000");
    advance(1s);
    EXPECT_THAT(steps, ElementsAre(45, 100));
}

TEST_F(DisplayBrightnessTest, ABacklightThatCannotBeReadAnyMoreIsLeft)
{
    addBacklight("panel", "raw", "400", "1000");
    LinuxDisplayBrightness display(loop, {});
    loop.settle();
    ASSERT_TRUE(display.isAvailable());
    setLevel(u"panel"_s, "");
    EXPECT_EQ(display.brightness(), std::nullopt);
    loop.settle();
    EXPECT_EQ(display.brightness(), 0.0) << "the hardware's own word is the second choice";
}

TEST_F(DisplayBrightnessTest, AsksAnExternalDisplayOnlyWithoutABacklight)
{
    const auto places =
        placesWithHelper("echo talk; echo brightness 0.25; read line; echo >\"$0.ended\"");
    LinuxDisplayBrightness display(loop, places);
    ASSERT_TRUE(eventually([&display] { return display.isAvailable(); }));
    EXPECT_EQ(display.brightness(), 0.25);

    addBacklight("panel", "raw", "400", "1000");
    tell(u"panel"_s, "add");
    ASSERT_TRUE(eventually([&display] { return display.brightness() == 0.4; }));
    EXPECT_TRUE(eventually([this] { return !names(u"helper.ended"_s).isEmpty(); }));
}

TEST_F(DisplayBrightnessTest, AHelperThatFailsOrTalksNonsenseGivesNoLevel)
{
    const char *const scripts[] = {
        "exit 3",
        "echo brightness 1.5; exec sleep 60",
        "echo brightness nan; exec sleep 60",
        "head -c 5000 /dev/zero | tr '\\0' x; exec sleep 60",
    };
    for (const auto *script : scripts) {
        LinuxDisplayBrightness display(loop,
                                       placesWithHelper(QByteArray("touch \"$0.ran\"\n") + script));
        const bool isNonsense = !QByteArray(script).startsWith("exit");
        EXPECT_TRUE(eventually([this, isNonsense] {
            return isNonsense ? log.take().size() == 1 : !names(u"helper.ran"_s).isEmpty();
        })) << script;
        EXPECT_FALSE(display.isAvailable()) << script;
    }
}

TEST_F(DisplayBrightnessTest, TheRealHelperEndsWhereNoDisplayAnswers)
{
    QProcess helper;
    helper.start(QStringLiteral(DDC_BRIGHTNESS), {});
    ASSERT_TRUE(helper.waitForFinished());
    EXPECT_EQ(helper.exitCode(), 3);
    EXPECT_FALSE(helper.readAllStandardOutput().contains("brightness "));
}

} // namespace

/// The fake /sys is the work of a preloaded library, so the test starts itself again with it.
int main(int argc, char **argv)
{
    const QByteArray library("libumockdev-preload.so.0");
    if (const auto preloaded = qgetenv("LD_PRELOAD"); !preloaded.contains(library)) {
        qputenv("LD_PRELOAD", library + ' ' + preloaded);
        qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0");
        ::execv("/proc/self/exe", argv);
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
