#include "google/GoogleApi.h"

#include "google/AuthRequest.h"
#include "google/GoogleAuthManager.h"
#include "google/HttpDate.h"

#include <QDebug>
#include <QJsonDocument>

#include <utility>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 largestAnswer = 512LL * 1024;
constexpr qsizetype longestMessage = 300; // characters of a server's own words
constexpr int ok = 200;
constexpr int unauthorized = 401;

/// The status, and what the server says to it.
QString describe(const HttpResponse &response)
{
    const QString message = QJsonDocument::fromJson(response.body)
                                .object()["error"_L1]["message"_L1]
                                .toString()
                                .simplified()
                                .left(longestMessage);
    const QString status = u"HTTP %1"_s.arg(response.status);
    return message.isEmpty() ? status : status + ": "_L1 + message;
}

} // namespace

GoogleApi::GoogleApi(RunLoop &runLoop, HttpClient &httpClient, GoogleAuthManager &authManager,
                     EndpointName endpointName, QLatin1StringView name)
    : runLoop_(runLoop)
    , httpClient_(httpClient)
    , authManager_(authManager)
    , endpointName_(endpointName)
    , name_(name)
{
}

void GoogleApi::get(const QString &pathAndQuery, Done done)
{
    cancel();
    done_ = std::move(done);
    token_ = authManager_.validAccessToken([this, pathAndQuery](const auto &token) {
        if (token)
            send(pathAndQuery, *token);
        else
            finish(std::nullopt);
    });
}

void GoogleApi::cancel()
{
    done_ = nullptr;
    token_.cancel();
    request_.cancel();
}

void GoogleApi::send(const QString &pathAndQuery, const QString &accessToken)
{
    const Endpoint server = endpoint(endpointName_);
    const HttpRequest request{.url = QUrl(serverAddress(server.url) + pathAndQuery),
                              .isReplacedEndpoint = server.isReplaced,
                              .headers = {{"Authorization", "Bearer " + accessToken.toLatin1()}},
                              .responseLimit = largestAnswer};
    request_ = httpClient_.send(request, [this](const HttpResult &result) { take(result); });
}

void GoogleApi::take(const HttpResult &result)
{
    if (!result) {
        if (!std::exchange(isOffline_, true))
            fail(result.error().text);
        return finish(std::nullopt);
    }
    isOffline_ = false;
    answeredAt_ = httpDate(headerNamed(result->headers, "date").value_or(QByteArray()));
    if (!answeredAt_.isValid())
        answeredAt_ = runLoop_.date();
    backoff_.answered(*result, runLoop_.now(), runLoop_.date());
    if (result->status == unauthorized)
        authManager_.forgetAccessToken(); // it may have been revoked before its time
    if (result->status != ok) {
        fail(describe(*result));
        return finish(std::nullopt);
    }
    QJsonParseError error;
    const QJsonDocument answer = QJsonDocument::fromJson(result->body, &error);
    if (answer.isObject())
        return finish(answer.object());
    fail(error.error == QJsonParseError::NoError ? u"the answer is no JSON object"_s
                                                 : error.errorString());
    finish(std::nullopt);
}

void GoogleApi::fail(const QString &description)
{
    qWarning("[Google] %s poll failed: %s", name_.data(), qUtf8Printable(description));
}

void GoogleApi::finish(const std::optional<QJsonObject> &answer)
{
    if (const auto done = std::exchange(done_, nullptr))
        done(answer);
}

} // namespace quillmere
