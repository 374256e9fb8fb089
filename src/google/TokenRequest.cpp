#include "google/TokenRequest.h"

#include "platform/Endpoints.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 largestAnswer = 65'536;
constexpr int ok = 200;

constexpr std::array secretFields{"code"_L1, "code_verifier"_L1, "refresh_token"_L1};
constexpr std::array secretAnswers{"access_token"_L1, "refresh_token"_L1, "id_token"_L1};

std::optional<QString> textOf(const QByteArray &bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8);
    QString text = decode(bytes);
    if (decode.hasError())
        return std::nullopt;
    return text;
}

/// A server that repeats what it was sent, or answers with tokens under another status, must not
/// get them shown.
QString withoutSecrets(QString body, const FormFields &fields)
{
    const auto hide = [&body](const QString &secret) {
        if (!secret.isEmpty())
            body.replace(secret, QStringLiteral("…"));
    };
    for (const auto &[name, value] : fields) {
        if (std::ranges::find(secretFields, name) != secretFields.end()) {
            hide(value);
            hide(QString::fromLatin1(QUrl::toPercentEncoding(value)));
        }
    }
    const QJsonObject answer = QJsonDocument::fromJson(body.toUtf8()).object();
    for (const auto name : secretAnswers)
        hide(answer[name].toString());
    return body;
}

AuthError failure(const HttpResult &answer, const FormFields &fields)
{
    const auto body = answer ? textOf(answer->body) : std::nullopt;
    return AuthError::http("Google token request failed: "_L1 +
                           (body ? withoutSecrets(*body, fields) : u"unknown error"_s));
}

std::optional<QString> textIn(const QJsonObject &object, QLatin1StringView key)
{
    const auto value = object[key];
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

Task requestToken(HttpClient &httpClient, const FormFields &fields,
                  std::function<void(const TokenResult &)> done)
{
    const Endpoint server = endpoint(EndpointName::GoogleToken);
    const HttpRequest request{.url = QUrl(serverAddress(server.url) + "/token"_L1),
                              .isReplacedEndpoint = server.isReplaced,
                              .method = "POST",
                              .headers = {{"Content-Type", "application/x-www-form-urlencoded"}},
                              .body = formEncoded(fields),
                              .responseLimit = largestAnswer};
    return httpClient.send(request, [fields, done = std::move(done)](const HttpResult &answer) {
        done(tokenResult(answer, fields));
    });
}

TokenResult tokenResult(const HttpResult &answer, const FormFields &fields)
{
    if (!answer || answer->status != ok)
        return tl::unexpected(failure(answer, fields));
    const QJsonObject object = QJsonDocument::fromJson(answer->body).object();
    const auto accessToken = textIn(object, "access_token"_L1);
    if (!accessToken)
        return tl::unexpected(AuthError::http(u"Malformed token response from Google."_s));
    TokenResponse response{.accessToken = *accessToken,
                           .refreshToken = textIn(object, "refresh_token"_L1)};
    if (const auto expiresIn = object["expires_in"_L1]; expiresIn.isDouble())
        response.expiresIn = expiresIn.toDouble();
    response.idTokenEmail = emailOfIDToken(object["id_token"_L1].toString());
    if (response.idTokenEmail && response.idTokenEmail->isEmpty())
        response.idTokenEmail.reset();
    return response;
}

std::optional<QString> emailOfIDToken(const QString &token)
{
    const QByteArray payload = token.section(u'.', 1, 1).toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(
        payload, QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return textIn(QJsonDocument::fromJson(*decoded).object(), "email"_L1);
}

} // namespace quillmere
