#include "platform/linux/net/HttpTransfer.h"

#include "platform/Endpoints.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr int mostRedirects = 5;
constexpr qint64 readAhead = 65'536; // bytes Qt may hold for us

QNetworkRequest toQtRequest(const HttpRequest &request)
{
    QNetworkRequest result(request.url);
    result.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                        QNetworkRequest::ManualRedirectPolicy);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        result.setAttribute(attribute, QNetworkRequest::Manual);
    result.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quillmere"));
    for (const auto &[name, value] : request.headers)
        result.setRawHeader(name, value);
    return result;
}

bool carriesCredentials(const HttpRequest &request)
{
    const auto isAuthorization = [](const auto &header) {
        return header.first.compare("authorization", Qt::CaseInsensitive) == 0;
    };
    return !request.body.isEmpty() || std::ranges::any_of(request.headers, isAuthorization);
}

bool isSameServer(const QUrl &a, const QUrl &b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() && a.port() == b.port();
}

/// Also drops the connection of a reply that is still coming in.
void discard(QNetworkReply *reply)
{
    reply->abort();
    reply->deleteLater();
}

HttpHeaders headersOf(const QNetworkReply &reply)
{
    HttpHeaders headers;
    for (const auto &[name, value] : reply.rawHeaderPairs())
        headers.append({name.toLower(), value});
    return headers;
}

} // namespace

HttpTransfer::HttpTransfer(QNetworkAccessManager &manager, const HttpRequest &request,
                           std::function<void(const HttpResult &)> done)
    : manager_(manager)
    , request_(request)
    , done_(std::move(done))
    , reply_(nullptr, &discard)
{
    ask();
}

HttpTransfer::~HttpTransfer() = default;

void HttpTransfer::stop()
{
    done_ = nullptr;
    reply_.reset();
}

void HttpTransfer::ask()
{
    body_.clear();
    reply_.reset(manager_.sendCustomRequest(toQtRequest(request_), request_.method, request_.body));
    QNetworkReply *reply = reply_.get();
    reply->setReadBufferSize(readAhead);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, &context_,
                     [this] { headersReceived(); });
    QObject::connect(reply, &QNetworkReply::readyRead, &context_, [this] { take(); });
    // Qt may find fault with a request before it returns; that is told with the other errors.
    QObject::connect(
        reply, &QNetworkReply::finished, &context_,
        [this, reply] {
            if (reply == reply_.get())
                finished();
        },
        Qt::QueuedConnection);
}

// Followed here and not by Qt 6.4, which sends a request once more for every redirect agreed to.
void HttpTransfer::follow(const QUrl &target, int status)
{
    if (++redirects_ > mostRedirects)
        return fail(HttpError::Kind::Failed, QStringLiteral("redirected too often"));
    if (!mayRequest(target, request_.isReplacedEndpoint))
        return fail(HttpError::Kind::NotPermitted, QStringLiteral("redirected away from https"));
    if (carriesCredentials(request_) && !isSameServer(target, request_.url))
        return fail(HttpError::Kind::NotPermitted, QStringLiteral("redirected to another server"));
    request_.url = target;
    if (status < 307 && request_.method != "HEAD") { // "see there", as everyone understands these
        request_.method = "GET";
        request_.body.clear();
    }
    ask();
}

void HttpTransfer::headersReceived()
{
    const auto length = reply_->header(QNetworkRequest::ContentLengthHeader);
    if (length.toLongLong() > request_.responseLimit)
        fail(HttpError::Kind::TooLarge, QStringLiteral("the answer is too large"));
}

void HttpTransfer::take()
{
    body_ += reply_->readAll();
    if (body_.size() > request_.responseLimit)
        fail(HttpError::Kind::TooLarge, QStringLiteral("the answer is too large"));
}

void HttpTransfer::finished()
{
    const auto status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const auto error = reply_->error();
    // Qt reports a status of 400 and above as an error too; for us it is an answer.
    const bool isAnswer = error == QNetworkReply::NoError ||
                          (error >= QNetworkReply::ContentAccessDenied && status.toInt() >= 400);
    if (!isAnswer || !status.isValid())
        return fail(HttpError::Kind::Failed, reply_->errorString());
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty())
        return follow(request_.url.resolved(target), status.toInt());
    take();
    if (const auto done = std::exchange(done_, nullptr))
        done(HttpResponse{status.toInt(), headersOf(*reply_), body_});
}

void HttpTransfer::fail(HttpError::Kind kind, const QString &text)
{
    if (const auto done = std::exchange(done_, nullptr))
        done(tl::unexpected(HttpError{kind, text}));
}

} // namespace quillmere
