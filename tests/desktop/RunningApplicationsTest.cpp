#include "platform/linux/window/X11RunningApplications.h"

#include "support/XServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

template <class Condition>
bool eventually(Condition condition)
{
    const QDeadlineTimer deadline(15'000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

/// A real program with a window of this class.
ChildProgram openWindow(const QString &className)
{
    return {u"mpv"_s,
            {u"--no-config"_s, u"--no-terminal"_s, u"--idle"_s, u"--force-window"_s, u"--vo=x11"_s,
             u"--ao=null"_s, u"--x11-name="_s + className}};
}

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
    auto browser = openWindow(u"Google-chrome"_s);
    EXPECT_TRUE(are({chrome}, chrome));
    const int before = changes;
    auto player = openWindow(u"Some.Player"_s);
    EXPECT_TRUE(are({chrome, u"some.player"_s}, u"some.player"_s));
    EXPECT_LE(changes - before, 3); // came, was recognised, was activated
    auto second = openWindow(u"chromium"_s);
    EXPECT_TRUE(are({chrome, u"some.player"_s}, chrome));
    second.kill();
    player.kill();
    EXPECT_TRUE(are({chrome}, chrome));
    browser.kill();
    EXPECT_TRUE(are({}, {}));
    server.kill();
    EXPECT_TRUE(eventually([&] { return !observer.connection().isOpen(); }));
    EXPECT_EQ(applications.running(), QStringList());
}

} // namespace
} // namespace quillmere
