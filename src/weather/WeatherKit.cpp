#include "weather/WeatherKit.h"

#include "platform/Endpoints.h"
#include "platform/HttpClient.h"
#include "weather/WeatherKitReply.h"

#include <QTimeZone>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qint64 largestAnswer = 512LL * 1024;
constexpr int unauthorized = 401;
constexpr int ok = 200;

/// A token is a word of visible characters; anything else could end the header it goes into.
bool isToken(const QString &text)
{
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar letter) { return letter > u' ' && letter <= u'~'; });
}

} // namespace

WeatherKit::WeatherKit(RunLoop &runLoop, HttpClient &httpClient, Keychain &keychain)
    : runLoop_(runLoop)
    , httpClient_(httpClient)
    , keychain_(keychain)
{
}

void WeatherKit::fetch(const Location &location, Done done)
{
    cancel();
    location_ = location;
    done_ = std::move(done);
    if (!token_.isEmpty())
        return send();
    const Duration limit = isRefused_ ? Duration::zero() : tokenTimeLimit;
    timeLimit_ = runLoop_.after(limit, [this] {
        finish(tl::unexpected(isRefused_ ? QStringLiteral("the keyring is closed to us")
                                         : QStringLiteral("the keyring does not answer")));
    });
    readToken();
}

void WeatherKit::cancel()
{
    done_ = nullptr;
    timeLimit_.cancel();
    request_.cancel();
}

void WeatherKit::readToken()
{
    if (isReading_ || isRefused_)
        return;
    isReading_ = true;
    reading_ = keychain_.read(QString(keychainService), QString(keychainAccount),
                              [this](const Keychain::Secret &secret) { useToken(secret); });
}

void WeatherKit::useToken(const Keychain::Secret &secret)
{
    isReading_ = false;
    const QString token = secret ? secret->trimmed() : QString();
    isRefused_ = !secret && secret.error().kind == KeychainError::Kind::Refused;
    if (isToken(token))
        token_ = token;
    if (!done_)
        return;
    timeLimit_.cancel();
    if (!token_.isEmpty())
        return send();
    if (!secret && secret.error().kind != KeychainError::Kind::NotFound)
        return finish(tl::unexpected(secret.error().text));
    finish(tl::unexpected(secret ? QStringLiteral("the developer token is not a token")
                                 : QStringLiteral("no developer token in the keyring")));
}

void WeatherKit::send()
{
    const QDateTime now = location_.timeZone.isEmpty()
                              ? runLoop_.date()
                              : runLoop_.date().toTimeZone(QTimeZone(location_.timeZone));
    const Endpoint server = endpoint(EndpointName::WeatherKit);
    const HttpRequest request{.url = weatherKitUrl(server.url, location_.latitude,
                                                   location_.longitude, now.timeZone().id()),
                              .isReplacedEndpoint = server.isReplaced,
                              .headers = {{"Authorization", "Bearer " + token_.toLatin1()}},
                              .responseLimit = largestAnswer};
    request_ = httpClient_.send(request, [this, now](const HttpResult &result) {
        if (!result)
            return finish(tl::unexpected(result.error().text));
        if (result->status == unauthorized)
            token_.clear(); // it may have been renewed in the keyring
        if (result->status != ok)
            return finish(tl::unexpected(QStringLiteral("HTTP %1").arg(result->status)));
        const auto weather = weatherKitWeather(result->body, now);
        finish(weather ? Result(*weather)
                       : tl::unexpected(QStringLiteral("no current weather in the answer")));
    });
}

void WeatherKit::finish(const Result &result)
{
    timeLimit_.cancel();
    if (const auto done = std::exchange(done_, nullptr))
        done(result);
}

} // namespace quillmere
