#include "platform/linux/window/X11RunningApplications.h"

#include "support/Eventually.h"
#include "support/X11Inspector.h"
#include "support/XServer.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

TEST(RunningApplicationsTest, FollowTheWindowsOfADesktop)
{
    XServer server;
    int argc = 1;
    char name[] = "RunningApplicationsTest";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);

    X11Observer observer;
    X11RunningApplications applications(observer);
    int changes = 0;
    const auto listener = applications.onChanged([&changes] { ++changes; });
    const auto are = [&](const QStringList &running, const QString &frontmost) {
        return eventually([&] {
            return applications.running() == running && applications.frontmost() == frontmost;
        });
    };
    const QString chrome = u"com.google.Chrome"_s;

    ChildProgram windowManager(u"openbox"_s, {u"--config-file"_s, u"/dev/null"_s});
    X11Inspector desktop;
    ASSERT_TRUE(eventually(
        [&] { return !desktop.property(desktop.root(), "_NET_SUPPORTING_WM_CHECK").empty(); }));
    const auto open = [&desktop](const char *className) {
        return desktop.openWindow({0, 0, 300, 200}, false, true, className);
    };
    const auto browser = open("Google-chrome");
    EXPECT_TRUE(are({chrome}, chrome));
    const int before = changes;
    const auto player = open("Some.Player");
    EXPECT_TRUE(are({chrome, u"some.player"_s}, u"some.player"_s));
    EXPECT_LE(changes - before, 3); // came, was recognised, was activated
    const auto second = open("chromium");
    EXPECT_TRUE(are({chrome, u"some.player"_s}, chrome));
    desktop.closeWindow(second);
    desktop.closeWindow(player);
    EXPECT_TRUE(are({chrome}, chrome));
    desktop.closeWindow(browser);
    EXPECT_TRUE(are({}, {}));
    server.kill();
    EXPECT_TRUE(eventually([&] { return !observer.connection().isOpen(); }));
    EXPECT_EQ(applications.running(), QStringList());
}

} // namespace
} // namespace quillmere
