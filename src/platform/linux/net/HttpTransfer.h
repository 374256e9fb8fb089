#pragma once

#include "platform/HttpClient.h"

#include <QNetworkReply>
#include <QObject>

#include <memory>

class QNetworkAccessManager;

namespace quillmere {

/// One request under way: keeps its limits, follows its redirects. Destroying it ends the request.
class HttpTransfer
{
public:
    /// Starts at once; `done` gets the outcome, never from within the constructor.
    HttpTransfer(QNetworkAccessManager &manager, const HttpRequest &request,
                 std::function<void(const HttpResult &)> done);
    ~HttpTransfer();

    /// Ends the request without an outcome.
    void stop();

private:
    void ask();
    void follow(const QUrl &target, int status);
    void headersReceived();
    void take();
    void finished();
    void fail(HttpError::Kind kind, const QString &text);

    QNetworkAccessManager &manager_;
    HttpRequest request_; ///< the one asked last
    std::function<void(const HttpResult &)> done_;
    QByteArray body_;
    int redirects_ = 0;
    std::unique_ptr<QNetworkReply, void (*)(QNetworkReply *)> reply_;
    QObject context_; ///< destroyed before the reply, whose last signals then reach nobody
};

} // namespace quillmere
