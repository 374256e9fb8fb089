#pragma once

#include <QString>

namespace quillmere {

/// Why there is no access token, or no sign-in.
struct AuthError {
    enum class Kind {
        Http, ///< whatever has a message of its own
        NotConfigured,
        BadClientID,
        Cancelled,
        NoRefreshToken,
        SignedOut
    };

    static AuthError http(QString message) { return {Kind::Http, std::move(message)}; }

    Kind kind = Kind::Http;
    QString message{}; ///< of the kind Http

    bool operator==(const AuthError &) const = default;
};

/// For the user.
QString text(const AuthError &error);

} // namespace quillmere
