#include "platform/linux/sockets/UnixMessageServer.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <atomic>
#include <map>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

/// What this thread has worked so far; time it was not given by a busy machine does not count.
Duration busyTime()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

class MessageSocketServerTest : public testing::Test
{
protected:
    void listen(const SocketLimits &limits = {})
    {
        server.emplace(loop, limits);
        ASSERT_TRUE(server->listen(path, owner, receiver()));
    }
    MessageSocketServer::Receiver receiver()
    {
        return [this](const QByteArray &message) {
            EXPECT_FALSE(loop.isMainThread());
            return [this, message] {
                EXPECT_TRUE(loop.isMainThread());
                received.push_back(message);
            };
        };
    }

    /// A socket that is connected or bound to the path; none if that fails.
    Descriptor socket(decltype(&::connect) join) const
    {
        Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, qPrintable(path), sizeof address.sun_path);
        if (join(socket.get(), reinterpret_cast<sockaddr *>(&address), sizeof address) != 0)
            return Descriptor();
        return socket;
    }
    Descriptor connect() const { return socket(&::connect); }
    static bool write(const Descriptor &socket, const QByteArray &bytes)
    {
        const auto size = static_cast<size_t>(bytes.size());
        return ::send(socket.get(), bytes.constData(), size, MSG_NOSIGNAL) == bytes.size();
    }
    void send(const QByteArray &message) const { EXPECT_TRUE(write(connect(), message)); }

    template <class Condition>
    bool waitFor(Condition condition)
    {
        const Instant end = loop.now() + 20s;
        while (!condition() && loop.now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return condition();
    }
    bool waitForMessages(std::size_t count)
    {
        return waitFor([&] { return received.size() >= count; });
    }

    int argc = 1;
    char program[5] = "test";
    char *argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
    LogCapture log;
    QTemporaryDir directory;
    const QString path = directory.filePath(u"socket"_s);
    QtRunLoop loop;
    std::vector<QByteArray> received;
    std::optional<UnixMessageServer> server;
    Owner owner;
};

TEST_F(MessageSocketServerTest, AssemblesPiecesAndIgnoresSilence)
{
    listen();
    EXPECT_TRUE(connect());
    const auto pieces = connect();
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(write(pieces, QByteArray(1'000, static_cast<char>('a' + i % 26))));
        QCoreApplication::processEvents();
    }
    send("whole");
    ASSERT_TRUE(waitForMessages(1));
    EXPECT_THAT(received, ElementsAre("whole"));
    ::shutdown(pieces.get(), SHUT_WR);
    ASSERT_TRUE(waitForMessages(2));
    EXPECT_EQ(received[1].size(), 100'000);
    EXPECT_TRUE(received[1].endsWith(QByteArray(1'000, static_cast<char>('a' + 99 % 26))));
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(MessageSocketServerTest, FiftyClientsLoseNothingAndKeepTheirOrder)
{
    constexpr std::size_t clients = 50;
    constexpr std::size_t each = 200;
    listen();
    Duration longest{};
    Duration last = busyTime();
    const Task heartbeat = loop.every(1ms, 0ms, [&] {
        const auto now = busyTime();
        longest = std::max(longest, now - std::exchange(last, now));
    });
    std::vector<std::thread> threads;
    threads.reserve(clients);
    for (std::size_t client = 0; client < clients; ++client)
        threads.emplace_back([this, client] {
            for (std::size_t i = 0; i < each; ++i) // some longer than one read
                send(QByteArray::number(client) + ' ' + QByteArray::number(i) + ' ' +
                     QByteArray(i % 50 == 0 ? 150'000 : qsizetype(i), 'x'));
        });
    const bool all = waitForMessages(clients * each);
    for (auto &thread : threads)
        thread.join();
    EXPECT_TRUE(all) << received.size();
    std::map<QByteArray, std::size_t> next;
    for (const auto &message : received) {
        const auto words = message.split(' ');
        ASSERT_EQ(words[1].toULongLong(), next[words[0]]++) << "client " << words[0].constData();
    }
    EXPECT_THAT(next, testing::Each(testing::Pair(testing::_, each)));
    RecordProperty("longest_work_between_two_timers_us", static_cast<int>(longest / 1us));
}

TEST_F(MessageSocketServerTest, AThousandHungClientsKeepNobodyOut)
{
    rlimit files = {};
    ::getrlimit(RLIMIT_NOFILE, &files);
    files.rlim_cur = std::min<rlim_t>(files.rlim_max, 4'096);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &files), 0); // both ends of a connection are ours here
    listen();
    const auto halfWay = connect();
    ASSERT_TRUE(write(halfWay, "half"));
    std::vector<Descriptor> hung;
    for (int i = 0; i < 1'000; ++i) {
        hung.push_back(connect());
        ASSERT_TRUE(hung.back()) << i;
        if (i % 2 == 0)
            write(hung.back(), "never ends");
        if (i % 250 == 0) {
            send("event");
            ASSERT_TRUE(waitForMessages(static_cast<std::size_t>(i) / 250 + 1));
        }
    }
    EXPECT_EQ(received.size(), 4U);
    char byte = 0;
    EXPECT_EQ(::recv(hung.front().get(), &byte, 1, 0), 0) << "the oldest had to go";
    EXPECT_THAT(log.take(), ElementsAre(testing::Property(&QString::isEmpty, false)));
}

TEST_F(MessageSocketServerTest, CutsOffWhoIsSilentTooLongOrTooLarge)
{
    listen({.message = 300'000, .total = 500'000, .connections = 10, .silence = 2s});
    const auto expectCut = [](const Descriptor &client) {
        char byte = 0;
        EXPECT_EQ(::recv(client.get(), &byte, 1, 0) > 0, false);
    };
    const auto tooLarge = connect();
    for (int i = 0; i < 10; ++i)
        write(tooLarge, QByteArray(50'000, 'x'));
    expectCut(tooLarge);
    const auto larger = connect();
    ASSERT_TRUE(write(larger, QByteArray(200'000, 'a')));
    const auto large = connect();
    ASSERT_TRUE(write(large, QByteArray(180'000, 'b')));
    const auto oneTooMany = connect();
    ASSERT_TRUE(write(oneTooMany, QByteArray(150'000, 'c')));
    expectCut(larger);
    ::shutdown(large.get(), SHUT_WR);
    ASSERT_TRUE(waitForMessages(1));
    EXPECT_EQ(received[0], QByteArray(180'000, 'b'));
    expectCut(oneTooMany); // it goes on saying nothing
    EXPECT_EQ(received.size(), 1U);
}

TEST_F(MessageSocketServerTest, NothingArrivesAfterTheEnd)
{
    listen();
    for (int i = 0; i < 50; ++i)
        send("late");
    std::this_thread::sleep_for(20ms); // most of them wait for the main thread now
    server->close();
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(connect());
    std::optional<Owner> other(std::in_place);
    ASSERT_TRUE(server->listen(path, *other, receiver()));
    send("first");
    ASSERT_TRUE(waitForMessages(1));
    EXPECT_THAT(received, ElementsAre("first"));
    send("orphan");
    other.reset();
    ASSERT_TRUE(server->listen(path, owner, receiver()));
    send("second");
    ASSERT_TRUE(waitForMessages(2));
    EXPECT_EQ(received[1], "second");

    // Another one took the path over: it is not ours to take away.
    UnixMessageServer successor(loop);
    ASSERT_TRUE(successor.listen(path, owner, receiver()));
    server->close();
    EXPECT_TRUE(connect());
}

TEST_F(MessageSocketServerTest, TakesAStaleSocketAwayAndTellsWhatItCannot)
{
    ASSERT_TRUE(socket(&::bind)); // left there
    listen();
    EXPECT_TRUE(connect());
    server->close();

    ASSERT_TRUE(QDir(directory.path()).mkdir(u"socket"_s)); // cannot be unlinked, as a squatter's
    const auto occupied = server->listen(path, owner, receiver());
    ASSERT_FALSE(occupied);
    EXPECT_EQ(occupied.error().step, ListenError::Step::Bind);
    EXPECT_EQ(occupied.error().text, u"Address already in use"_s);
    EXPECT_EQ(log.take().size(), 1);
}

} // namespace
} // namespace quillmere
