#pragma once

#include "google/AuthError.h"
#include "platform/Keychain.h"

namespace quillmere {

/// The refresh token's place in the keyring. Main thread only.
class RefreshTokenItem
{
public:
    static constexpr QLatin1StringView keychainService{"com.quillmere.google"};
    static constexpr QLatin1StringView refreshTokenAccount{"google-refresh-token"};

    explicit RefreshTokenItem(Keychain &keychain);

    /// As of Keychain.
    Task read(std::function<void(const Keychain::Secret &)> done) const;

    /// Stores a sign-in's token: what was there goes first, so that there is never more than one.
    /// Giving up in between would leave none.
    void replace(const QString &token, const Keychain::Done &done);
    bool isReplacing() const { return static_cast<bool>(replacing_); }

    /// Stores the one that Google has handed out in place of the other.
    void rotate(const QString &token);

    /// `done` may be empty. That there was none is no error.
    void remove(Keychain::Done done);

private:
    Keychain &keychain_;
    Task replacing_;
    Task rotation_;
    Task removal_;
};

/// For the user.
AuthError keyringError(const KeychainError &error);

} // namespace quillmere
