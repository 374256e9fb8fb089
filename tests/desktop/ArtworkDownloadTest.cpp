#include "nowplaying/NowPlayingArtworkService.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/net/QtHttpClient.h"
#include "support/Eventually.h"
#include "support/FakeMedia.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

QByteArray png(int side)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImage(side, side, QImage::Format_Mono).save(&buffer, "PNG");
    return buffer.data();
}

QByteArray http(const QByteArray &body, qsizetype length = -1)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " +
           QByteArray::number(length < 0 ? body.size() : length) + "\r\n\r\n" + body;
}

/// What the store's picture server answers, and whether that is artwork.
struct Case {
    const char *what;
    QByteArray answer;
    bool isGood;
};

TEST(ArtworkDownloadTest, OnlyGoodPicturesAreShown)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    QtRunLoop runLoop;
    QtHttpClient client(runLoop);
    FakeMediaRemote media;
    FakeScriptRunner scripts;
    FakeRunningApplications applications;
    auto service =
        std::make_unique<NowPlayingArtworkService>(runLoop, media, scripts, applications, client);
    const Case cases[] = {
        {"good", http(png(300)), true},
        {"wrong type", http("<html>not a picture</html>"), false},
        {"half a picture", http(png(300).chopped(30)), false},
        {"half an answer", http(png(300), 100'000), false},
        {"redirected", "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: /0\r\n\r\n", true},
        {"too large", http(QByteArray(10'000'001, 'x')), false},
        {"64 megapixels in a few kilobytes", http(png(8000)), false},
        {"good again", http(png(300)), true},
        {"silent", {}, false}};

    QTcpServer server;
    int requests = 0;
    int closed = 0;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(server.serverPort());
    qputenv("QUILLMERE_STORE_LOOKUP_URL", address);
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket *socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::disconnected, &server, [&closed] { ++closed; });
        QObject::connect(socket, &QTcpSocket::readyRead, &server, [&, socket] {
            ++requests;
            const QByteArray path = socket->readAll().split(' ').at(1);
            const bool isLookup = path.startsWith("/lookup?id=");
            const QByteArray album = path.mid(isLookup ? 11 : 1).split('&').front();
            socket->write(isLookup ? http("{\"results\":[{\"artworkUrl100\":\"" + address + '/' +
                                          album + "\"}]}")
                                   : cases[album.toInt()].answer);
            if (album == "3" && !isLookup)
                socket->disconnectFromHost();
        });
    });

    std::optional<NowPlayingInfo> record;
    const auto fetch = [&](int album) {
        record.reset();
        media.info = {{mediaInfo::title, QString::number(album)},
                      {mediaInfo::albumStoreIdentifier, album}};
        service->fetch([&record](const auto &info) { record = info; });
        media.answer();
    };
    for (int album = 1; album < 8; ++album) {
        fetch(album);
        ASSERT_TRUE(eventually([&record] { return record.has_value(); })) << cases[album].what;
        EXPECT_EQ(record->artwork.has_value(), cases[album].isGood) << cases[album].what;
    }
    requests = 0;
    fetch(8);
    ASSERT_TRUE(eventually([&requests] { return requests == 2; }));
    closed = 0;
    fetch(8);
    EXPECT_TRUE(record) << "without artwork meanwhile";
    service.reset();
    EXPECT_TRUE(eventually([&closed] { return closed > 0; }));
}

} // namespace

} // namespace quillmere
