#include "platform/linux/core/UnixSignals.h"

#include <QCoreApplication>

#include <csignal>
#include <vector>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UnixSignalsTest : public ::testing::Test
{
protected:
    static void handleNothing(int) {}

    static bool isHandledBy(int signal, void (*handler)(int))
    {
        struct sigaction current = {};
        sigaction(signal, nullptr, &current);
        return current.sa_handler == handler;
    }

    int argc_ = 1;
    char name_[16] = "UnixSignalsTest";
    char *argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    std::vector<int> heard_;
};

TEST_F(UnixSignalsTest, CallsOnTheEventLoopAndPutsTheFormerHandlingBack)
{
    std::signal(SIGTERM, &handleNothing);
    {
        UnixSignals unixSignals([this](int signal) { heard_.push_back(signal); });
        std::raise(SIGTERM);
        std::raise(SIGHUP);
        EXPECT_THAT(heard_, IsEmpty());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
        EXPECT_THAT(heard_, ElementsAre(SIGTERM, SIGHUP));
        EXPECT_TRUE(isHandledBy(SIGINT, SIG_DFL));
        EXPECT_FALSE(isHandledBy(SIGHUP, SIG_DFL)) << "closing a terminal may send two";
    }
    EXPECT_TRUE(isHandledBy(SIGTERM, &handleNothing));
    EXPECT_TRUE(isHandledBy(SIGHUP, SIG_DFL));
    std::signal(SIGTERM, SIG_DFL);
}

TEST_F(UnixSignalsTest, SecondSignalEndsAProcessThatHangs)
{
    const auto hang = [](int second) {
        UnixSignals unixSignals([](int) {});
        std::raise(SIGINT);
        std::raise(second);
    };
    EXPECT_EXIT(hang(SIGINT), ::testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT(hang(SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
}

TEST_F(UnixSignalsTest, KeepsHangUpIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        UnixSignals unixSignals([this](int signal) { heard_.push_back(signal); });
        std::raise(SIGHUP);
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(heard_, IsEmpty());
    EXPECT_TRUE(isHandledBy(SIGHUP, SIG_IGN));
    std::signal(SIGHUP, SIG_DFL);
}

} // namespace

} // namespace quillmere
