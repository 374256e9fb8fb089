#include "platform/linux/media/MprisMediaRemote.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/BusServer.h"
#include "support/FakeHttpClient.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"
#include "support/XServer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

struct MediaRemoteTest : testing::Test {
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "MediaRemoteTest";
        static char *argv[] = {name, nullptr};
        static QCoreApplication application(argc, argv);
    }

    MediaRemoteTest() { qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8()); }

    template <class Predicate>
    static bool waitUntil(Predicate isDone)
    {
        QTimer wake;
        wake.start(2);
        const QDeadlineTimer deadline(20s);
        while (!isDone()) {
            if (deadline.hasExpired())
                return false;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

    /// What another program is told.
    QVariant property(const QString &player, const QString &name) const
    {
        auto question = QDBusMessage::createMethodCall(
            u"org.mpris.MediaPlayer2."_s + player, u"/org/mpris/MediaPlayer2"_s,
            u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
        question << u"org.mpris.MediaPlayer2.Player"_s << name;
        const auto answer = bus.connect().call(question).arguments().value(0);
        return answer.canConvert<QDBusVariant>() ? answer.value<QDBusVariant>().variant() : answer;
    }

    void setProperty(const QString &player, const QString &name, const QVariant &value) const
    {
        auto call = QDBusMessage::createMethodCall(u"org.mpris.MediaPlayer2."_s + player,
                                                   u"/org/mpris/MediaPlayer2"_s,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
        call << u"org.mpris.MediaPlayer2.Player"_s << name
             << QVariant::fromValue(QDBusVariant(value));
        bus.connect().call(call);
    }

    BusServer bus;
    NotificationCenter notifications;
    FakeHttpClient http;
    QTemporaryDir folder;
    Owner owner;
};

/// The player that lies, on virtual time: only the bus is waited for.
struct HostilePlayerTest : MediaRemoteTest {
    HostilePlayerTest()
    {
        remote.registerForNowPlayingNotifications();
        kinds = readLine().toInt();
    }

    QByteArray readLine()
    {
        const bool isThere = waitUntil([this] {
            runLoop.advance(10ms);
            return program.process().canReadLine();
        });
        return isThere ? program.process().readLine().trimmed() : QByteArray();
    }

    void become(const QByteArray &kind)
    {
        program.process().write(kind + '\n');
        EXPECT_EQ(readLine(), kind.split(' ').front());
    }

    QVariantMap ask()
    {
        int answers = 0;
        QVariantMap said;
        remote.getNowPlayingInfo(owner, [&](const auto &info) {
            ++answers;
            said = info;
        });
        EXPECT_EQ(answers, 0);
        EXPECT_TRUE(waitUntil([&] {
            runLoop.settle();
            return answers > 0;
        }));
        runLoop.settle();
        EXPECT_EQ(answers, 1);
        return said;
    }

    /// What it says once the latest state has arrived.
    QVariantMap askLate()
    {
        ask();
        return ask();
    }

    bool waitForTitle(const QString &title)
    {
        return waitUntil([&] {
            runLoop.advance(50ms);
            return ask().value(mediaInfo::title).toString() == title;
        });
    }

    ChildProgram program{u"/usr/bin/python3"_s, {QStringLiteral(HOSTILE_PLAYER)}};
    ManualRunLoop runLoop;
    MprisMediaRemote remote{runLoop, notifications, http, bus.connect()};
    int kinds = 0;
};

TEST_F(HostilePlayerTest, NoNonsenseChangesWhatIsKnown)
{
    LogCapture log;
    ASSERT_TRUE(waitForTitle(u"Good"_s));
    ASSERT_GE(kinds, 200);
    for (int kind = 0; kind < kinds; ++kind) {
        SCOPED_TRACE(kind);
        become(QByteArray::number(kind));
        const auto info = askLate();
        EXPECT_EQ(info.value(mediaInfo::title), u"Good"_s);
        EXPECT_LE(info.value(mediaInfo::artist).toString().size(), 512);
        EXPECT_FALSE(info.value(mediaInfo::artist).toString().contains(QChar(0x202E)));
        const double duration = info.value(mediaInfo::duration, 1.0).toDouble();
        EXPECT_TRUE(duration >= 1 && duration < 1e7) << duration;
        const double elapsed = info.value(mediaInfo::elapsedTime).toDouble();
        EXPECT_TRUE(elapsed >= 0 && elapsed <= 1e7) << elapsed;
        EXPECT_FALSE(info.contains(mediaInfo::artworkImage));
    }
    EXPECT_LE(log.take().size(), 3); // one of each kind

    become("good");
    EXPECT_FALSE(remote.cycleRepeat()); // which it does not have
    for (const bool isShuffled : {true, false}) {
        askLate();
        EXPECT_TRUE(remote.toggleShuffle());
        EXPECT_TRUE(waitUntil([&] { return property(u"hostile"_s, u"Shuffle"_s) == isShuffled; }));
    }
    program.process().write("vanish\n");
    EXPECT_EQ(ask().value(mediaInfo::title), u"Good"_s); // in the middle of the question
    EXPECT_TRUE(waitForTitle({}));
    EXPECT_FALSE(remote.sendCommand(MediaRemote::Command::NextTrack));
    EXPECT_FALSE(remote.toggleShuffle() || remote.cycleRepeat());
}

TEST_F(MediaRemoteTest, PlayersAreFoundOnceTheBusTells)
{
    ChildProgram player(u"/usr/bin/python3"_s, {QStringLiteral(HOSTILE_PLAYER)});
    ASSERT_TRUE(waitUntil([&] { return player.process().canReadLine(); }));
    for (const QString &method : {u"ListNames"_s, u"GetNameOwner"_s}) {
        bus.forbid(method);
        LogCapture log;
        ManualRunLoop runLoop;
        MprisMediaRemote remote{runLoop, notifications, http, bus.connect()};
        remote.registerForNowPlayingNotifications();
        EXPECT_TRUE(waitUntil([&] { return !log.take().isEmpty(); })) << method.toStdString();
        bus.forbid({});
        bool isFound = false;
        EXPECT_TRUE(waitUntil([&] {
            runLoop.advance(20ms);
            remote.getNowPlayingInfo(owner, [&](const auto &info) { isFound |= !info.isEmpty(); });
            return isFound;
        })) << method.toStdString();
        EXPECT_GE(runLoop.now(), Instant(1h + 1s));
    }
}

QByteArray picture(Qt::GlobalColor color)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    QBuffer png;
    image.save(&png, "png");
    return png.data();
}

TEST_F(HostilePlayerTest, PicturesComeFromFilesTextsAndTheWeb)
{
    const QString path = folder.filePath(u"a b"_s);
    const auto write = [&path](const QByteArray &bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    const auto shows = [this](std::optional<QColor> color) {
        const auto image = askLate().value(mediaInfo::artworkImage).value<QImage>();
        const auto again = ask().value(mediaInfo::artworkImage).value<QImage>();
        EXPECT_EQ(image.cacheKey(), again.cacheKey()); // decoded once
        return color ? !image.isNull() && image.pixelColor(0, 0) == *color : image.isNull();
    };
    const QByteArray file = "art file://" + path.toUtf8().replace(' ', "%20");
    const QByteArray data = "art data:image/png;base64,";
    ASSERT_TRUE(waitForTitle(u"Good"_s));

    become(file); // not written yet
    EXPECT_TRUE(shows(std::nullopt));
    write(picture(Qt::red));
    become(file);
    EXPECT_TRUE(shows(QColor(Qt::red)));
    write(picture(Qt::green) + "and more");
    become(file);
    EXPECT_TRUE(shows(QColor(Qt::green)));
    QFile::remove(path);
    become(file);
    EXPECT_TRUE(shows(QColor(Qt::green)));
    become(data + picture(Qt::blue).toBase64());
    EXPECT_TRUE(shows(QColor(Qt::blue)));

    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    for (const QByteArray &nothing : QByteArrayList{
             file, QByteArray("art file:///dev/zero"), QByteArray(data + "AAAA"),
             QByteArray("art file:///tmp"), QByteArray("art http://example.org/a.png")}) {
        become(nothing);
        EXPECT_TRUE(shows(std::nullopt)) << nothing.constData();
    }
    EXPECT_TRUE(http.requests.empty());

    become("art https://example.org/a.png");
    EXPECT_TRUE(shows(std::nullopt));
    become("art https://example.org/a.png");
    ask();
    ASSERT_EQ(http.requests.size(), 1U);
    EXPECT_LE(http.requests.front().responseLimit, 10'000'000);
    int news = 0;
    const auto observer =
        notifications.observe(mediaEvents::infoDidChange, [&news](const auto &) { ++news; });
    http.answer(HttpResponse{.status = 200, .body = picture(Qt::yellow)});
    runLoop.advance(100ms);
    EXPECT_EQ(news, 1);
    EXPECT_TRUE(shows(QColor(Qt::yellow)));

    become("art https://example.org/b.png");
    askLate();
    std::vector<std::size_t> requests;
    for (const HttpResult &failure :
         {HttpResult(tl::unexpected(HttpError{})), HttpResult(HttpResponse{.status = 503}),
          HttpResult(HttpResponse{.status = 404})}) {
        EXPECT_TRUE(http.answer(failure));
        for (int second = 0; second < 5; ++second) {
            ask();
            requests.push_back(http.requests.size());
            runLoop.advance(1s);
        }
    }
    EXPECT_EQ(requests, (std::vector<std::size_t>{2, 2, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4}));
}

/// On real time, with real players.
struct RealPlayerTest : MediaRemoteTest {
    QVariantMap ask()
    {
        std::optional<QVariantMap> said;
        remote.getNowPlayingInfo(owner, [&](const auto &info) { said = info; });
        EXPECT_TRUE(waitUntil([&] { return said.has_value(); }));
        return said.value_or(QVariantMap());
    }
    template <class Value>
    Value ask(QLatin1StringView key)
    {
        return ask().value(key).value<Value>();
    }

    QString makeTrack(const QString &title)
    {
        QString path = folder.filePath(title + u".ogg"_s);
        XServer::run(u"ffmpeg"_s,
                     {u"-loglevel"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=440:d=20"_s,
                      u"-metadata"_s, u"title="_s + title, u"-metadata"_s, u"artist=The Testers"_s,
                      u"-c:a"_s, u"libvorbis"_s, path});
        return path;
    }

    std::unique_ptr<ChildProgram> startPlayer(const QStringList &arguments)
    {
        const QStringList quiet{u"--no-config"_s, u"--no-video"_s, u"--ao=null"_s,
                                u"--no-terminal"_s, u"--script=/usr/lib/mpv-mpris/mpris.so"_s};
        return std::make_unique<ChildProgram>(u"mpv"_s, quiet + arguments);
    }

    QtRunLoop runLoop;
    MprisMediaRemote remote{runLoop, notifications, http, bus.connect()};
};

TEST_F(RealPlayerTest, ObeyAndTellWhereTheyAre)
{
    const QString first = makeTrack(u"First Light"_s);
    const QString second = makeTrack(u"Second Wind"_s);
    QImage cover(300, 300, QImage::Format_RGB32);
    cover.fill(Qt::cyan);
    ASSERT_TRUE(cover.save(folder.filePath(u"cover.png"_s)));

    auto proxy = bus.connect();
    ASSERT_TRUE(proxy.registerService(u"org.mpris.MediaPlayer2.playerctld"_s));
    QList<QStringList> players;
    const auto list = notifications.observe(
        mediaEvents::playersDidChange, [&](const auto &) { players.append(remote.players()); });
    EXPECT_TRUE(ask().isEmpty());
    EXPECT_TRUE(remote.players().isEmpty());
    const auto player = startPlayer({first, second});
    const auto plays = [this](const QString &title, double rate) {
        return waitUntil([&] {
            const auto info = ask();
            return info.value(mediaInfo::title) == title &&
                   info.value(mediaInfo::playbackRate) == rate;
        });
    };
    ASSERT_TRUE(plays(u"First Light"_s, 1));
    EXPECT_TRUE(waitUntil([&] { return !ask<QImage>(mediaInfo::artworkImage).isNull(); }));
    const auto info = ask();
    EXPECT_EQ(info.value(mediaInfo::artist), u"The Testers"_s);
    EXPECT_EQ(info.value(mediaInfo::bundleIdentifier), u"mpv"_s);
    EXPECT_NEAR(info.value(mediaInfo::duration).toDouble(), 20, 0.1);

    remote.setElapsedTime(12);
    EXPECT_TRUE(waitUntil([&] { return ask<double>(mediaInfo::elapsedTime) >= 12; }));
    EXPECT_LT(ask<double>(mediaInfo::elapsedTime), 14);
    EXPECT_TRUE(remote.sendCommand(MediaRemote::Command::TogglePlayPause));
    EXPECT_TRUE(plays(u"First Light"_s, 0));
    const double frozen = ask<double>(mediaInfo::elapsedTime);
    EXPECT_EQ(ask<double>(mediaInfo::elapsedTime), frozen);
    EXPECT_TRUE(remote.sendCommand(MediaRemote::Command::TogglePlayPause));
    EXPECT_TRUE(plays(u"First Light"_s, 1));
    EXPECT_TRUE(remote.sendCommand(MediaRemote::Command::NextTrack));
    EXPECT_TRUE(plays(u"Second Wind"_s, 1));
    EXPECT_LT(ask<double>(mediaInfo::elapsedTime), 10);
    EXPECT_TRUE(remote.sendCommand(MediaRemote::Command::PreviousTrack));
    EXPECT_TRUE(plays(u"First Light"_s, 1));

    QList<std::optional<RepeatMode>> told;
    const auto modes = notifications.observe(
        mediaEvents::playModeDidChange, [&](const auto &) { told.append(remote.repeatMode()); });
    ASSERT_EQ(remote.repeatMode(), RepeatMode::Nothing);
    for (const QString &loop : {u"Playlist"_s, u"Track"_s, u"None"_s}) {
        EXPECT_TRUE(remote.cycleRepeat());
        EXPECT_TRUE(waitUntil([&] { return property(u"mpv"_s, u"LoopStatus"_s) == loop; }));
    }
    EXPECT_EQ(told, (decltype(told){RepeatMode::List, RepeatMode::Track, RepeatMode::Nothing}));
    told.clear();
    setProperty(u"mpv"_s, u"LoopStatus"_s, u"Track"_s); // by somebody else
    EXPECT_TRUE(waitUntil([&] { return !told.isEmpty(); }));
    EXPECT_EQ(told, QList{std::optional(RepeatMode::Track)});
    setProperty(u"mpv"_s, u"LoopStatus"_s, u"None"_s);

    const auto other = startPlayer({second}); // begins later
    EXPECT_TRUE(plays(u"Second Wind"_s, 1));
    other->kill();
    EXPECT_TRUE(plays(u"First Light"_s, 1));
    bus.stop();
    EXPECT_TRUE(waitUntil([&] { return !remote.isAvailable() && ask().isEmpty(); }));
    // Two of the same name are one, and who speaks for others is none.
    EXPECT_EQ(players, (QList<QStringList>{{u"mpv"_s}, {}}));
}

TEST_F(RealPlayerTest, AStormCostsAFewQuestions)
{
    ChildProgram program(u"/usr/bin/python3"_s, {QStringLiteral(HOSTILE_PLAYER)});
    remote.registerForNowPlayingNotifications();
    ASSERT_TRUE(waitUntil([&] { return !ask().isEmpty(); }));
    int news = 0;
    const auto observer =
        notifications.observe(mediaEvents::infoDidChange, [&news](const auto &) { ++news; });
    program.process().readAllStandardOutput();
    program.process().write("storm 2000\n");
    ASSERT_TRUE(waitUntil([&] { return program.process().canReadLine(); }));
    const int questions = program.process().readLine().toInt();
    EXPECT_GE(questions, 2);
    EXPECT_LE(questions, 20); // in two seconds
    EXPECT_LE(news, 20);
}

} // namespace
} // namespace quillmere
