#include "nowplaying/NowPlayingArtworkService.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/net/QtHttpClient.h"
#include "support/FakeMedia.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

QByteArray png(QSize size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

/// The store and its pictures, which misbehave as the album says.
class StoreServer
{
public:
    StoreServer()
    {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket *socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, &server_,
                             [this, socket] { serve(*socket, socket->readAll()); });
            QObject::connect(socket, &QTcpSocket::disconnected, &server_, [this] { ++closed; });
        });
        qputenv("QUILLMERE_STORE_LOOKUP_URL", address());
    }
    ~StoreServer() { qunsetenv("QUILLMERE_STORE_LOOKUP_URL"); }

    QByteArray address() const
    {
        return "http://127.0.0.1:" + QByteArray::number(server_.serverPort());
    }

    int requests = 0;
    int closed = 0;

private:
    void serve(QTcpSocket &socket, const QByteArray &request)
    {
        ++requests;
        if (request.startsWith("GET /lookup?id=7&entity=album&limit=1 "))
            return silence();
        if (const auto at = request.indexOf("/lookup?id="); at >= 0) {
            const QByteArray album = request.mid(at + 11).split('&').front();
            return respond(socket, "\n{\"results\":[{\"artworkUrl100\":\"" + address() +
                                       "/100x100bb/" + album + "\"}]}");
        }
        const QByteArray path = request.split(' ').at(1);
        EXPECT_TRUE(path.startsWith("/600x600bb/") || path == "/elsewhere") << path.constData();
        picture(socket, path.mid(path.lastIndexOf('/') + 1).toInt());
    }

    static void silence() {}

    void picture(QTcpSocket &socket, int kind)
    {
        switch (kind) {
        case 2:
            return respond(socket, "<svg xmlns='http://www.w3.org/2000/svg'");
        case 3:
            return respond(socket, png({300, 300}).chopped(30));
        case 4:
            socket.write("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: /elsewhere\r\n\r\n");
            return;
        case 5:
            return respond(socket, QByteArray(10'000'001, 'x'));
        case 6:
            return respond(socket, png({8000, 8000})); // 64 megapixels in a few kilobytes
        case 8:
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\nx");
            return socket.close();
        default:
            return respond(socket, png({300, 300}));
        }
    }

    static void respond(QTcpSocket &socket, const QByteArray &body)
    {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) +
                     "\r\n\r\n" + body);
    }

    QTcpServer server_;
};

TEST(ArtworkDownloadTest, OnlyGoodPicturesAreShown)
{
    int argc = 1;
    char name[] = "ArtworkDownloadTest";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    QtRunLoop runLoop;
    QtHttpClient http(runLoop);
    StoreServer server;
    FakeMediaRemote media;
    FakeScriptRunner scripts;
    FakeRunningApplications applications;
    auto service =
        std::make_unique<NowPlayingArtworkService>(runLoop, media, scripts, applications, http);
    const auto eventually = [&runLoop](const std::function<bool()> &condition) {
        const Task wake = runLoop.every(5ms, 0ms, [] {});
        const QDeadlineTimer limit(20s);
        while (!condition() && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return condition();
    };
    std::optional<NowPlayingInfo> record;
    const auto fetch = [&](int album) {
        record.reset();
        media.info = {{mediaInfo::title, QString::number(album)},
                      {mediaInfo::albumStoreIdentifier, album}};
        service->fetch([&record](const auto &info) { record = info; });
        media.answer();
    };

    const std::pair<int, bool> cases[] = {{1, true},  {2, false}, {3, false}, {4, true},
                                          {5, false}, {6, false}, {8, false}, {9, true}};
    for (const auto &[album, isGood] : cases) {
        fetch(album);
        ASSERT_TRUE(eventually([&record] { return record.has_value(); })) << album;
        EXPECT_EQ(record->artwork.has_value(), isGood) << album;
    }

    const int closed = server.closed;
    const int requests = server.requests;
    fetch(7); // never answers
    ASSERT_TRUE(eventually([&] { return server.requests > requests; }));
    fetch(7);
    EXPECT_TRUE(record) << "without artwork meanwhile";
    service.reset();
    EXPECT_TRUE(eventually([&] { return server.closed > closed; }));
}

} // namespace

} // namespace quillmere
