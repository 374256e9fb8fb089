#include "platform/linux/net/RouteReachability.h"

#include "support/ManualRunLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

#include <sched.h>

namespace quillmere {
namespace {

/// Runs ip(8) in the network of the test's own.
void ip(const char *arguments)
{
    ASSERT_EQ(QProcess::execute(QStringLiteral("ip"), QString::fromLatin1(arguments).split(u' ')),
              0)
        << arguments;
}

TEST(RouteReachability, TellsOfADefaultRouteOnceItHasSettled)
{
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        GTEST_SKIP() << "no network of its own to change";
    int argc = 1;
    char name[] = "RouteReachabilityTest";
    char *argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    ManualRunLoop runLoop;
    RouteReachability reachability(runLoop);
    int returns = 0;
    const Task listening = reachability.onReturn([&] { ++returns; });
    const auto settle = [&] {
        QCoreApplication::processEvents();
        runLoop.advance(RouteReachability::settling);
    };

    ip("link set lo up");
    ip("route add 192.0.2.0/24 dev lo");
    settle();
    EXPECT_EQ(returns, 0) << "no way out";
    ip("route add default dev lo");
    ip("-6 route add default dev lo");
    settle();
    EXPECT_EQ(returns, 1) << "two routes, one network";
    ip("route del default");
    settle();
    EXPECT_EQ(returns, 1);
    ip("route add default dev lo");
    settle();
    EXPECT_EQ(returns, 2);
}

} // namespace
} // namespace quillmere
