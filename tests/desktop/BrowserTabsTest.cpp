#include "helpers/DevTools.h"
#include "helpers/FirefoxSession.h"
#include "support/BusServer.h"

#include <QCoreApplication>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>
#include <lz4.h>

#include <filesystem>
#include <optional>
#include <random>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

std::string pack(const std::string &text)
{
    std::string packed(static_cast<std::size_t>(LZ4_compressBound(static_cast<int>(text.size()))),
                       '\0');
    packed.resize(static_cast<std::size_t>(LZ4_compress_default(text.data(), packed.data(),
                                                                static_cast<int>(text.size()),
                                                                static_cast<int>(packed.size()))));
    std::string size;
    for (unsigned shift = 0; shift < 32; shift += 8)
        size += static_cast<char>(text.size() >> shift);
    return std::string("mozLz40\0", 8) + size + packed;
}

const std::string session = R"({"version":["sessionrestore",1],"windows":[
 {"tabs":[{"entries":[{"url":"https://a.example/","title":"A","children":[{"url":"x"}]},
                      {"url":"https://a.example/2","title":"A2 |~|~| \ud83d\ude00 \ud83d"}],"index":1},
          {"entries":[{"url":"https://b.example/?x=1|~|2","title":"B\nB"}],"index":7}],"selected":2},
 {"tabs":[{"entries":[],"index":1},{"entries":[{"url":"https://c.example/","title":"C"}]}],
  "selected":2}],
 "selectedWindow":1,"_closedWindows":[{"tabs":[{"entries":[{"url":"gone"}]}]}]})";

const QByteArray sessionText = "https://b.example/?x=1%7C~%7C2|~|B B\n"
                               "https://a.example/|~|A\n"
                               "https://b.example/?x=1%7C~%7C2|~|B B\n"
                               "https://c.example/|~|C\n";

const QByteArray targets = R"([
 {"type":"browser_ui","title":"Popup","url":"chrome://popup/"},
 {"type":"page","title":"Inspector","url":"devtools://devtools/x"},
 {"type":"page","title":"Rock &amp;amp; Roll &lt;live&gt; &quot;x&quot; &#39;","url":"https://v.example/"},
 7, {"type":"page"}, {"type":"page","title":[],"url":"https://w.example/"}])";

const QByteArray targetsText = "https://v.example/|~|Rock &amp; Roll <live> \"x\" '\n"
                               "https://v.example/|~|Rock &amp; Roll <live> \"x\" '\n"
                               "https://w.example/|~|\n";

/// A service on the bus that answers any call to it with `answer`.
class Answering : public QDBusVirtualObject
{
public:
    explicit Answering(QVariant answer)
        : answer_(std::move(answer))
    {
    }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        return connection.send(message.createReply(answer_));
    }

private:
    QVariant answer_;
};

/// The helper programs, in a home of their own.
class BrowserTabsTest : public testing::Test
{
protected:
    void write(const QString &name, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(home.filePath(name)).path());
        QFile file(home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// What the helper prints; it must succeed.
    QByteArray ask(const QString &helper, const QStringList &arguments = {})
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.remove(u"XDG_CONFIG_HOME"_s);
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus ? bus->address() : u"unix:path=/"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(HELPERS) + helper, arguments);
        QEventLoop loop; // the servers here have to answer meanwhile
        QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        return process.readAllStandardOutput();
    }

    int argc = 1;
    char program[5] = "test";
    char *argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
    QTemporaryDir home;
    std::optional<BusServer> bus;
};

TEST_F(BrowserTabsTest, ReadsTheNewestSessionOfFirefox)
{
    const QString file = u"%1/sessionstore-backups/recovery.jsonlz4"_s;
    EXPECT_EQ(ask(u"browser-tabs"_s, {u"org.mozilla.firefox"_s}), "");
    write(file.arg(u".mozilla/firefox/old"_s), QByteArray::fromStdString(pack("{}")));
    write(u".mozilla/firefox/profiles.ini"_s,
          "[Profile0]\nPath=" + home.path().toUtf8() + "/far\n");
    write(file.arg(u"far"_s), QByteArray::fromStdString(pack(session)));
    std::filesystem::last_write_time(
        home.filePath(file.arg(u".mozilla/firefox/old"_s)).toStdString(),
        std::filesystem::file_time_type::clock::now() - 1h);
    EXPECT_EQ(ask(u"browser-tabs"_s, {u"org.mozilla.firefox"_s}), sessionText);
    EXPECT_EQ(ask(u"front-tab"_s, {u"org.mozilla.firefox"_s}), "https://b.example/?x=1%7C~%7C2\n");
    EXPECT_EQ(ask(u"front-tab"_s, {u"com.apple.Safari"_s}), "");
}

TEST(FirefoxSessionTest, RefusesWhatIsDamagedOrLies)
{
    const std::string good = pack(session);
    ASSERT_EQ(unpackMozLz4(good), session);
    std::string lying = good;
    for (const int size : {0x00, 0x01, 0x7f, 0xff}) {
        lying[11] = static_cast<char>(size); // the highest byte of the size
        EXPECT_EQ(unpackMozLz4(lying).has_value(), size == 0) << size;
    }
    lying = good;
    ++lying[8];
    EXPECT_FALSE(unpackMozLz4(lying));
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(unpackMozLz4(good.substr(0, size))) << size;
    // A title cut within an emoji costs half a character, not the session.
    const std::string emojis = R"({"windows":[{"tabs":[{"entries":[{"url":"u","title":"%"}]}]}]})";
    for (const auto &[escaped, title] : {std::pair(R"(a\ud83d)", "a\uFFFD"),
                                         {R"(\ude00b\\ud83d)", "\uFFFDb\\ud83d"},
                                         {R"(\ud83d\ud83d\ude00)", "\uFFFD\U0001F600"}}) {
        const auto at = emojis.find('%');
        EXPECT_EQ(tabsOfSession(std::string(emojis).replace(at, 1, escaped)).front.title, title);
    }
}

TEST(FirefoxSessionTest, WithstandsAnyBytes)
{
    std::mt19937 random(4);
    const auto mutate = [&random](std::string bytes) {
        for (auto count = random() % 8; count-- > 0 && !bytes.empty();) {
            const auto at = random() % bytes.size();
            if (random() % 4 == 0)
                bytes.resize(at);
            else if (random() % 4 == 0)
                bytes.insert(at, bytes, random() % bytes.size(), random() % 64);
            else
                bytes[at] = static_cast<char>(random());
        }
        return bytes;
    };
    std::size_t survivors = 0;
    for (int round = 0; round < 20000; ++round) {
        if (auto unpacked = unpackMozLz4(mutate(pack(session))))
            toText(tabsOfSession(std::move(*unpacked)));
        survivors += tabsOfSession(mutate(session)).all.size();
        toText(tabsOfTargets(mutate(targets.toStdString())));
    }
    EXPECT_GT(survivors, 1000U);
    tabsOfSession(std::string(1000000, '['));
}

TEST_F(BrowserTabsTest, ListsTheTabsOfADevToolsPort)
{
    const QByteArray ok = "HTTP/1.1 200 OK\r\n";
    const auto length = [](qsizetype size) -> QByteArray {
        return "content-length:" + QByteArray::number(size) + "\r\n\r\n";
    };
    const std::pair<QByteArray, QByteArray> cases[] = {
        {ok + length(targets.size()) + targets + "more", targetsText},
        {ok + "\r\n" + targets, targetsText},
        {ok + length(targets.size() + 1) + targets, ""},
        {ok + length(1LL << 40) + targets, ""},
        {ok + "Transfer-Encoding: chunked\r\n\r\n" + targets, ""},
        {"HTTP/1.1 404 Not Found\r\n\r\n" + targets, ""},
        {ok + "\r\n<html>", ""},
        {ok + "\r\n" + QByteArray(9LL * 1024 * 1024, ' ') + targets, ""},
        {ok + "X: " + QByteArray(20000, 'x') + "\r\n\r\n" + targets, ""},
        {"", ""},
    };
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QByteArray answer, request;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket *client = server.nextPendingConnection();
        QObject::connect(client, &QTcpSocket::readyRead, client, [&, client] {
            request = client->readAll();
            client->write(answer);
            client->disconnectFromHost();
        });
    });
    const QByteArray port = QByteArray::number(server.serverPort());
    write(u".config/BraveSoftware/Brave-Browser/DevToolsActivePort"_s, port + "\n/devtools/x");
    for (const auto &[given, expected] : cases) {
        answer = given;
        EXPECT_EQ(ask(u"browser-tabs"_s, {u"com.brave.Browser"_s}), expected)
            << given.left(99).data();
    }
    EXPECT_EQ(request, "GET /json/list HTTP/1.1\r\nHost: 127.0.0.1:" + port +
                           "\r\nConnection: close\r\n\r\n");
    server.pauseAccepting(); // the kernel still connects, and nobody ever answers
    EXPECT_EQ(ask(u"front-tab"_s, {u"com.brave.Browser"_s}), "");
}

TEST_F(BrowserTabsTest, ListsTheTabsOfARealBrowser)
{
    QProcess chromium;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/"_s);
    chromium.setProcessEnvironment(environment);
    chromium.setStandardErrorFile(QProcess::nullDevice());
    chromium.start(u"chromium"_s,
                   {u"--headless"_s, u"--no-sandbox"_s, u"--disable-gpu"_s,
                    u"--disable-dev-shm-usage"_s, u"--disable-background-networking"_s,
                    u"--no-first-run"_s, u"--remote-debugging-port=0"_s,
                    u"--user-data-dir="_s + home.filePath(u"anywhere"_s),
                    u"data:text/html,<title>A%20|~|%20%26amp;%20B</title>"_s});
    const QByteArray line = "data:text/html,<title>A%20%7C~%7C%20%26amp;%20B</title>|~|A |-| & B\n";
    const QByteArray expected = line + line;
    QByteArray tabs;
    const QDeadlineTimer limit(60s);
    while (tabs != expected && !limit.hasExpired() && !chromium.waitForFinished(100))
        tabs = ask(u"browser-tabs"_s, {u"com.google.Chrome"_s});
    EXPECT_EQ(tabs.toStdString(), expected.toStdString());
    chromium.terminate();
    chromium.waitForFinished();
}

TEST_F(BrowserTabsTest, AsksSpotifyForItsTrack)
{
    EXPECT_EQ(ask(u"spotify-url"_s), "");
    bus.emplace();
    EXPECT_EQ(ask(u"spotify-url"_s), "");
    const QString dead = u"https://open.spotify.com/image/0123abcd"_s;
    const std::tuple<QVariant, const char *, const char *> cases[] = {
        {QVariantMap{{u"mpris:artUrl"_s, u"https://i.scdn.co/image/ab"_s},
                     {u"xesam:url"_s, u"https://open.spotify.com/track/x\ny"_s}},
         "https://i.scdn.co/image/ab\n", "https://open.spotify.com/track/xy\n"},
        {QVariantMap{{u"mpris:artUrl"_s, dead}, {u"xesam:url"_s, QStringList{u"spotify:x"_s}}},
         "https://i.scdn.co/image/0123abcd\n", "spotify:x\n"},
        {QVariantMap{{u"mpris:artUrl"_s, 7}, {u"xesam:url"_s, u""_s}}, "", ""},
        {QStringList{u"mpris:artUrl"_s, u"xesam:url"_s}, "", ""},
        {u"mpris:artUrl"_s, "", ""},
    };
    for (const auto &[metadata, artwork, url] : cases) {
        QDBusConnection connection = bus->connect();
        Answering player(QVariant::fromValue(QDBusVariant(metadata)));
        connection.registerVirtualObject(u"/org/mpris/MediaPlayer2"_s, &player);
        ASSERT_TRUE(connection.registerService(u"org.mpris.MediaPlayer2.spotify"_s));
        EXPECT_EQ(ask(u"spotify-artwork"_s), artwork);
        EXPECT_EQ(ask(u"spotify-url"_s), url);
        connection.unregisterService(u"org.mpris.MediaPlayer2.spotify"_s);
    }
}

TEST_F(BrowserTabsTest, AsksTheIntegrationThatTheBrowserStarted)
{
    bus.emplace();
    QProcess browser; // a shell by that name, the parent of the integration
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus->address());
    browser.setProcessEnvironment(environment);
    browser.start(u"bash"_s, {u"-c"_s, uR"(exec -a /opt/firefox bash -c '"$0" "$1" & wait' "$@")"_s,
                              u"x"_s, u"/usr/bin/python3"_s, QStringLiteral(BROWSER_INTEGRATION)});
    ASSERT_TRUE(browser.waitForReadyRead()) << browser.readAllStandardError().data();
    EXPECT_EQ(ask(u"browser-tabs"_s, {u"com.brave.Browser"_s}), "");
    EXPECT_EQ(ask(u"browser-tabs"_s, {u"org.mozilla.firefox"_s}),
              "https://youtu.be/1|~|Song - YouTube\nhttps://youtube.example/2|~|One text\n");
    bus.reset(); // which ends the integration, and so the browser
    browser.waitForFinished();
}

} // namespace
