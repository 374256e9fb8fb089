#include "platform/Endpoints.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/net/QtHttpClient.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>

#include <optional>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using Kind = HttpError::Kind;

/// A web server on the loopback that misbehaves as its paths say.
class LoopbackServer
{
public:
    LoopbackServer()
    {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket *socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, &server_,
                             [this, socket] { serve(*socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, &server_, [this] { ++closed; });
        });
    }

    QUrl url(const QString &path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/%2").arg(server_.serverPort()).arg(path));
    }

    int requests = 0;
    int closed = 0;
    QByteArray received;

private:
    void serve(QTcpSocket &socket)
    {
        received = socket.readAll();
        ++requests;
        const QByteArray path = received.mid(received.indexOf('/') + 1).split(' ').front();
        const int hops = path.mid(path.lastIndexOf('/') + 1).toInt();
        if (path.startsWith("redirect/") && hops > 0)
            return redirect(socket, "/redirect/" + QByteArray::number(hops - 1));
        if (path == "elsewhere")
            return redirect(socket, "http://127.0.0.2/ok");
        if (path == "neighbour")
            return redirect(socket, "http://127.0.0.1:9/ok");
        if (path == "file")
            return redirect(socket, "file:///etc/passwd");
        if (path == "large")
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: 9999999\r\n\r\n");
        else if (path == "endless")
            pour(socket);
        else if (path == "rude")
            socket.close();
        else if (path == "nonsense")
            socket.write("hello?\r\n\r\n");
        else if (path == "cookie")
            respond(socket, "200 OK\r\nSet-Cookie: a=b");
        else if (path == "missing")
            respond(socket, "404 Not Found");
        else if (path != "silent")
            respond(socket, "200 OK");
    }

    static void respond(QTcpSocket &socket, const QByteArray &head)
    {
        socket.write("HTTP/1.1 " + head + "\r\nContent-Length: 5\r\nX-Test: 1\r\n\r\nhello");
    }

    static void redirect(QTcpSocket &socket, const QByteArray &target)
    {
        respond(socket, "302 Found\r\nLocation: " + target);
    }

    static void pour(QTcpSocket &socket)
    {
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
        QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket,
                         [&socket] { socket.write(QByteArray(16384, 'x')); });
    }

    QTcpServer server_;
};

class HttpClientTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "HttpClientTest";
        static char *argv[] = {name, nullptr};
        static const QCoreApplication application(argc, argv);
    }

    HttpRequest request(const char *path)
    {
        return {.url = server_.url(QLatin1StringView(path)), .isReplacedEndpoint = true};
    }

    HttpResult fetch(const HttpRequest &request)
    {
        std::optional<HttpResult> result;
        const Task task =
            client_->send(request, [&result](const HttpResult &outcome) { result = outcome; });
        EXPECT_FALSE(result) << "told from within send()";
        EXPECT_TRUE(eventually([&result] { return result.has_value(); }));
        return result.value_or(HttpResponse{});
    }

    QtRunLoop runLoop_;
    LoopbackServer server_;
    std::unique_ptr<QtHttpClient> client_ = std::make_unique<QtHttpClient>(runLoop_);
};

TEST_F(HttpClientTest, AnswersAreAnswersWhateverTheirStatus)
{
    const std::pair<const char *, int> cases[] = {
        {"ok", 200}, {"missing", 404}, {"redirect/5", 200}, {"cookie", 200}};
    for (const auto &[path, status] : cases) {
        const auto result = fetch(request(path));
        ASSERT_TRUE(result) << path << qPrintable(result.error().text);
        EXPECT_EQ(result->status, status) << path;
        EXPECT_EQ(result->body, "hello") << path;
        EXPECT_TRUE(result->headers.contains({"x-test", "1"})) << path;
    }
    auto post = request("ok");
    post.method = "POST";
    post.headers = {{"Content-Type", "application/json"}};
    post.body = "{}";
    ASSERT_TRUE(fetch(post));
    EXPECT_TRUE(server_.received.startsWith("POST /ok")) << server_.received.constData();
    EXPECT_TRUE(server_.received.endsWith("\r\n\r\n{}"));
    EXPECT_FALSE(server_.received.toLower().contains("cookie"));
    const int before = server_.requests;
    post.url = server_.url(QStringLiteral("redirect/1"));
    ASSERT_TRUE(fetch(post));
    EXPECT_TRUE(server_.received.startsWith("GET /redirect/0")) << server_.received.constData();
    EXPECT_EQ(server_.requests, before + 2);
}

TEST_F(HttpClientTest, BadServersAreErrors)
{
    auto small = request("ok");
    small.responseLimit = 4;
    auto silent = request("silent");
    silent.timeLimit = 50ms;
    auto plain = request("ok");
    plain.isReplacedEndpoint = false;
    auto secret = request("neighbour");
    secret.headers = {{"authorization", "Bearer token"}};
    auto form = request("neighbour");
    form.method = "POST";
    form.body = "code=x";
    const std::pair<HttpRequest, Kind> cases[] = {
        {request("large"), Kind::TooLarge},
        {request("endless"), Kind::TooLarge},
        {small, Kind::TooLarge},
        {silent, Kind::TimedOut},
        {request("rude"), Kind::Failed},
        {request("nonsense"), Kind::Failed},
        {request("redirect/6"), Kind::Failed},
        {request("elsewhere"), Kind::NotPermitted},
        {request("file"), Kind::NotPermitted},
        {secret, Kind::NotPermitted},
        {form, Kind::NotPermitted},
        {plain, Kind::NotPermitted},
        {{.url = QUrl(QStringLiteral("file:///etc/passwd"))}, Kind::NotPermitted},
        {{.url = QUrl()}, Kind::NotPermitted},
    };
    for (const auto &[request, kind] : cases) {
        const auto result = fetch(request);
        ASSERT_FALSE(result) << request.url.toString().toStdString();
        EXPECT_EQ(result.error().kind, kind) << request.url.toString().toStdString();
    }
    EXPECT_TRUE(fetch(request("ok"))) << "and go on afterwards";
}

TEST_F(HttpClientTest, NobodyHearsOfACancelledRequest)
{
    int told = 0;
    const auto count = [&told](const HttpResult &) { ++told; };
    Task silent = client_->send(request("silent"), count);
    Task unsent = client_->send(request("ok"), count);
    unsent.cancel();
    ASSERT_TRUE(eventually([this] { return server_.requests == 1; }));
    silent.cancel();
    ASSERT_TRUE(eventually([this] { return server_.closed == 1; }));

    const Task orphan = client_->send(request("silent"), count);
    ASSERT_TRUE(eventually([this] { return server_.requests == 2; }));
    client_.reset();
    ASSERT_TRUE(eventually([this] { return server_.closed == 2; }));
    EXPECT_EQ(told, 0);
}

TEST_F(HttpClientTest, TheCallbackMayDestroyTheClient)
{
    for (const char *path : {"ok", "large", "elsewhere"}) {
        client_ = std::make_unique<QtHttpClient>(runLoop_);
        const Task task =
            client_->send(request(path), [this](const HttpResult &) { client_.reset(); });
        EXPECT_TRUE(eventually([this] { return !client_; })) << path;
    }
}

TEST(EndpointsTest, TheEnvironmentReplacesAnAddress)
{
    const std::pair<const char *, bool> cases[] = {
        {"https://host/feed", true},    {"http://127.0.0.1:8080/f", true}, {"http://host/f", false},
        {"http://127.0.0.1.x/", false}, {"file:///feed", false},           {"feed", false},
    };
    for (const auto &[address, isTaken] : cases) {
        LogCapture log;
        qputenv("QUILLMERE_UPDATE_FEED_URL", address);
        const Endpoint feed = endpoint(EndpointName::UpdateFeed);
        EXPECT_EQ(feed.isReplaced, isTaken) << address;
        EXPECT_EQ(feed.url == QUrl(QLatin1StringView(address)), isTaken) << address;
        EXPECT_EQ(log.take().size(), isTaken ? 0 : 1) << address;
    }
    qunsetenv("QUILLMERE_UPDATE_FEED_URL");
    EXPECT_FALSE(endpoint(EndpointName::UpdateFeed).isReplaced);
}

} // namespace

} // namespace quillmere
