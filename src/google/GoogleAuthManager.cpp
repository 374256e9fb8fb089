#include "google/GoogleAuthManager.h"

#include "platform/Endpoints.h"
#include "settings/SettingsStore.h"

#include <QDebug>
#include <QRandomGenerator>
#include <QUrlQuery>

#include <array>
#include <utility>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr Duration expiryMargin = 60s;

QByteArray randomBytes()
{
    std::array<quint32, 12> words{}; // 48 bytes
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return {reinterpret_cast<const char *>(words.data()), sizeof words};
}

AuthError errorOf(const WebAuthError &error)
{
    if (error.kind == WebAuthError::Kind::Cancelled)
        return {AuthError::Kind::Cancelled};
    return AuthError::http(error.text);
}

} // namespace

GoogleAuthManager::GoogleAuthManager(const GoogleAuthTools &tools, SettingsStore &settings)
    : tools_(tools)
    , settings_(settings)
    , refreshToken_(tools.keychain)
{
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        if (key == settings_.googleAccountEmail.key())
            Q_EMIT signedInEmailChanged();
        else if (key == settings_.googleClientID.key())
            Q_EMIT clientIDChanged();
    });
}

std::optional<QString> GoogleAuthManager::signedInEmail() const
{
    const QString email = settings_.googleAccountEmail.get();
    return email.isEmpty() ? std::nullopt : std::optional(email);
}

QString GoogleAuthManager::clientID() const
{
    const QString own = settings_.googleClientID.get().trimmed();
    return own.isEmpty() ? QStringLiteral(QUILLMERE_GOOGLE_CLIENT_ID) : own;
}

std::optional<QString> GoogleAuthManager::reversedClientID() const
{
    return quillmere::reversedClientID(clientID());
}

void GoogleAuthManager::signIn(SignedIn done)
{
    if (refreshToken_.isReplacing())
        return refuse({AuthError::Kind::Cancelled}, std::move(done));
    cancelSignIn();
    const auto scheme = reversedClientID();
    if (clientID().isEmpty())
        return refuse({AuthError::Kind::NotConfigured}, std::move(done));
    if (!scheme)
        return refuse({AuthError::Kind::BadClientID}, std::move(done));
    const PKCEPair pair = makePKCEPair(randomBytes());
    signedIn_ = std::move(done);
    clientInUse_ = clientID();
    redirectURI_ = *scheme + ":/oauth2redirect"_L1;
    codeVerifier_ = pair.verifier;
    setSigningIn(true);
    webAuthSession_ = tools_.webAuthSession.start(
        authorisationUrl(endpoint(EndpointName::GoogleAuth).url, clientInUse_, redirectURI_,
                         pair.challenge),
        QUrl(redirectURI_), [this](const WebAuthSession::Result &result) { redirected(result); });
}

void GoogleAuthManager::cancelSignIn()
{
    if (!refreshToken_.isReplacing())
        finishSignIn(tl::unexpected(AuthError{AuthError::Kind::Cancelled}));
}

void GoogleAuthManager::refuse(AuthError error, SignedIn done)
{
    tools_.runLoop.post(owner_, [error = std::move(error), done = std::move(done)] {
        done(tl::unexpected(error));
    });
}

void GoogleAuthManager::redirected(const WebAuthSession::Result &result)
{
    webAuthSession_.cancel();
    if (!result)
        return finishSignIn(tl::unexpected(errorOf(result.error())));
    const QString code = QUrlQuery(*result).queryItemValue(u"code"_s, QUrl::FullyDecoded);
    if (code.isEmpty())
        return finishSignIn(
            tl::unexpected(AuthError::http(u"No authorization code in Google's redirect."_s)));
    exchange(code);
}

void GoogleAuthManager::exchange(const QString &code)
{
    const FormFields fields{{"client_id"_L1, clientInUse_},
                            {"redirect_uri"_L1, redirectURI_},
                            {"grant_type"_L1, u"authorization_code"_s},
                            {"code"_L1, code},
                            {"code_verifier"_L1, QString::fromLatin1(codeVerifier_)}};
    exchange_ = requestToken(tools_.httpClient, fields, [this](const TokenResult &result) {
        if (!result)
            return finishSignIn(tl::unexpected(result.error()));
        if (!result->refreshToken || result->refreshToken->isEmpty())
            return finishSignIn(tl::unexpected(AuthError{AuthError::Kind::NoRefreshToken}));
        store(*result);
    });
}

void GoogleAuthManager::store(const TokenResponse &response)
{
    refresh_.cancel(); // of the account before, whose answer must not replace this one's tokens
    refreshToken_.replace(*response.refreshToken, [this, response](const auto &kept) {
        if (!kept) {
            qWarning("[Google] The keyring does not take the refresh token: %s",
                     qUtf8Printable(kept.error().text));
            return finishSignIn(tl::unexpected(keyringError(kept.error())));
        }
        isKeyringClosed_ = false;
        setAccessToken(response);
        Q_EMIT accountReplaced();
        if (response.idTokenEmail)
            setEmail(*response.idTokenEmail);
        qInfo("[Google] signed in");
        finishSignIn({});
    });
}

void GoogleAuthManager::finishSignIn(const tl::expected<void, AuthError> &outcome)
{
    webAuthSession_.cancel();
    exchange_.cancel();
    codeVerifier_.clear();
    if (!waiting_.empty() && !refresh_) { // who came while the tokens were being stored
        if (outcome)
            handOut(accessToken_);
        else
            beginRefresh();
    }
    const auto done = std::exchange(signedIn_, nullptr);
    setSigningIn(false);
    if (done)
        tools_.runLoop.post(owner_, [done, outcome] { done(outcome); });
}

void GoogleAuthManager::setSigningIn(bool signingIn)
{
    if (std::exchange(isSigningIn_, signingIn) != signingIn)
        Q_EMIT isSigningInChanged();
}

Task GoogleAuthManager::validAccessToken(TokenDone done)
{
    const quint64 id = ++lastWaiting_;
    waiting_.emplace(id, std::move(done));
    if (!accessToken_.isEmpty() && tools_.runLoop.now() < accessTokenExpiry_) {
        tools_.runLoop.post(owner_, [this, id, token = accessToken_] {
            if (const auto found = waiting_.extract(id))
                found.mapped()(token);
        });
    } else {
        beginRefresh();
    }
    return Task([this, id, life = owner_.reference()] {
        if (!life.expired())
            waiting_.erase(id);
    });
}

void GoogleAuthManager::beginRefresh()
{
    if (refresh_ || refreshToken_.isReplacing()) // which bring a token too
        return;
    if (isKeyringClosed_)
        refresh_ = tools_.runLoop.after({}, [this] {
            refresh(tl::unexpected(KeychainError{KeychainError::Kind::Refused, {}}));
        });
    else
        refresh_ = refreshToken_.read([this](const Keychain::Secret &secret) { refresh(secret); });
}

void GoogleAuthManager::refresh(const Keychain::Secret &secret)
{
    isKeyringClosed_ = !secret && secret.error().kind == KeychainError::Kind::Refused;
    const bool isMissing =
        secret ? secret->isEmpty() : secret.error().kind == KeychainError::Kind::NotFound;
    if (isMissing) {
        setEmail({});
        return handOut(tl::unexpected(AuthError{AuthError::Kind::SignedOut}));
    }
    if (!secret)
        return handOut(tl::unexpected(keyringError(secret.error())));
    const FormFields fields{{"client_id"_L1, clientID()},
                            {"grant_type"_L1, u"refresh_token"_s},
                            {"refresh_token"_L1, *secret}};
    refresh_ = requestToken(tools_.httpClient, fields,
                            [this](const TokenResult &result) { refreshed(result); });
}

void GoogleAuthManager::refreshed(const TokenResult &result)
{
    if (!result) {
        const AuthError &error = result.error();
        if (error.kind != AuthError::Kind::Http || !error.message.contains("invalid_grant"_L1))
            return handOut(tl::unexpected(error));
        return signOut();
    }
    setAccessToken(*result);
    if (result->refreshToken && !result->refreshToken->isEmpty())
        refreshToken_.rotate(*result->refreshToken);
    if (result->idTokenEmail)
        setEmail(*result->idTokenEmail);
    handOut(accessToken_);
}

void GoogleAuthManager::setAccessToken(const TokenResponse &response)
{
    accessToken_ = response.accessToken;
    accessTokenExpiry_ =
        tools_.runLoop.now() + seconds(response.expiresIn.value_or(0)) - expiryMargin;
}

void GoogleAuthManager::setEmail(const QString &email)
{
    constexpr qsizetype longestEmail = 254; // characters
    settings_.googleAccountEmail.set(email.left(longestEmail));
}

void GoogleAuthManager::handOut(const tl::expected<QString, AuthError> &token)
{
    refresh_.cancel();
    std::vector<quint64> ids; // who is served first may make others give up, and new ones ask
    for (const auto &entry : waiting_)
        ids.push_back(entry.first);
    for (const quint64 id : ids) {
        if (const auto found = waiting_.extract(id))
            found.mapped()(token);
    }
}

void GoogleAuthManager::forgetAccessToken()
{
    accessToken_.clear();
}

void GoogleAuthManager::signOut(Keychain::Done done)
{
    forgetAccessToken();
    accessTokenExpiry_ = {};
    setEmail({});
    Q_EMIT accountReplaced();
    handOut(tl::unexpected(AuthError{AuthError::Kind::SignedOut}));
    refreshToken_.remove(std::move(done));
}

} // namespace quillmere
