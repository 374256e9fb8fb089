#pragma once

#include "google/RefreshTokenItem.h"
#include "google/TokenRequest.h"
#include "platform/RunLoop.h"
#include "platform/WebAuthSession.h"

#include <QObject>

#include <map>

namespace quillmere {

class SettingsStore;

/// What signing in needs of the system.
struct GoogleAuthTools {
    RunLoop &runLoop;
    HttpClient &httpClient;
    Keychain &keychain;
    WebAuthSession &webAuthSession;
};

/// Signs the user in to Google (OAuth 2.0 for installed apps, with PKCE), keeps the refresh token
/// in the keyring and nowhere else, and hands out access tokens. Main thread only.
class GoogleAuthManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isSigningIn READ isSigningIn NOTIFY isSigningInChanged FINAL)

public:
    GoogleAuthManager(const GoogleAuthTools &tools, SettingsStore &settings);

    /// The account; nothing: signed out. It outlives the program in `googleAccountEmail`.
    std::optional<QString> signedInEmail() const;

    bool isSigningIn() const { return isSigningIn_; }

    /// The user's, else the one this build brings.
    QString clientID() const;
    std::optional<QString> reversedClientID() const;

    using SignedIn = std::function<void(const tl::expected<void, AuthError> &)>;

    /// `done` gets the outcome once, never from within the call. A sign-in before is cancelled; but
    /// if Google's answer to that is already being stored, this one is.
    void signIn(SignedIn done);

    /// The user has thought better of it: ends the sign-in with `Cancelled`, unless Google's answer
    /// is already being stored.
    void cancelSignIn();

    using TokenDone = std::function<void(const tl::expected<QString, AuthError> &)>;

    /// `done` gets a token that is good for a minute at least, once, never from within the call;
    /// destroying the Task leaves it out. A refresh serves everyone who waits for one.
    Task validAccessToken(TokenDone done);

    /// The next request for a token refreshes it.
    void forgetAccessToken();

    /// `done` hears whether the keyring let go of the token.
    void signOut(Keychain::Done done = {});

Q_SIGNALS:
    void signedInEmailChanged();
    void isSigningInChanged();
    void clientIDChanged();

    /// The account is another one now, or none.
    void accountReplaced();

private:
    void refuse(AuthError error, SignedIn done);
    void redirected(const WebAuthSession::Result &result);
    void exchange(const QString &code);
    void store(const TokenResponse &response);
    void finishSignIn(const tl::expected<void, AuthError> &outcome);
    void setSigningIn(bool signingIn);

    void beginRefresh();
    void refresh(const Keychain::Secret &secret);
    void refreshed(const TokenResult &result);
    void setAccessToken(const TokenResponse &response);
    void setEmail(const QString &email);
    void handOut(const tl::expected<QString, AuthError> &token);

    GoogleAuthTools tools_;
    SettingsStore &settings_;

    RefreshTokenItem refreshToken_;

    bool isSigningIn_ = false;
    SignedIn signedIn_;
    QString redirectURI_;
    QString clientInUse_; ///< of the sign-in that runs
    QByteArray codeVerifier_;
    Task webAuthSession_;
    Task exchange_;

    QString accessToken_;
    Instant accessTokenExpiry_;
    bool isKeyringClosed_ = false; ///< the user has refused it; nobody asks again on their own
    Task refresh_;
    std::map<quint64, TokenDone> waiting_;
    quint64 lastWaiting_ = 0;
    Owner owner_;
};

} // namespace quillmere
