#include "google/AuthError.h"

#include "google/AuthRequest.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(GoogleSignIn)
};

} // namespace

QString text(const AuthError &error)
{
    switch (error.kind) {
    case AuthError::Kind::Http:
        return error.message;
    case AuthError::Kind::NotConfigured:
        return Words::tr("Paste your Google OAuth client ID first.");
    case AuthError::Kind::BadClientID:
        return Words::tr("That does not look like a client ID of a Google installed-app client "
                         "(…%1).")
            .arg(clientIDSuffix);
    case AuthError::Kind::Cancelled:
        return Words::tr("Sign-in was cancelled.");
    case AuthError::Kind::NoRefreshToken:
        return Words::tr("Google returned no refresh token. Remove Quillmere's access on your "
                         "Google account's permissions page (%1), then sign in again.")
            .arg(QLatin1StringView("https://myaccount.google.com/permissions"));
    case AuthError::Kind::SignedOut:
        return Words::tr("Not signed in to Google.");
    }
    return {};
}

} // namespace quillmere
