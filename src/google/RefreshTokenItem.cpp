#include "google/RefreshTokenItem.h"

#include <QCoreApplication>
#include <QDebug>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(GoogleSignIn)
};

bool isGone(const tl::expected<void, KeychainError> &removed)
{
    return removed || removed.error().kind == KeychainError::Kind::NotFound;
}

} // namespace

RefreshTokenItem::RefreshTokenItem(Keychain &keychain)
    : keychain_(keychain)
{
}

Task RefreshTokenItem::read(std::function<void(const Keychain::Secret &)> done) const
{
    return keychain_.read(QString(keychainService), QString(refreshTokenAccount), std::move(done));
}

void RefreshTokenItem::replace(const QString &token, const Keychain::Done &done)
{
    const auto finish = [this, done](const auto &outcome) {
        replacing_.cancel();
        done(outcome);
    };
    const auto write = [this, token, finish](const auto &removed) {
        if (!isGone(removed))
            return finish(removed);
        replacing_ =
            keychain_.write(QString(keychainService), QString(refreshTokenAccount), token, finish);
    };
    replacing_ = keychain_.remove(QString(keychainService), QString(refreshTokenAccount), write);
}

void RefreshTokenItem::rotate(const QString &token)
{
    rotation_ = keychain_.write(
        QString(keychainService), QString(refreshTokenAccount), token, [](const auto &kept) {
            if (!kept)
                qWarning("[Google] The keyring does not keep the new refresh token: %s",
                         qUtf8Printable(kept.error().text));
        });
}

void RefreshTokenItem::remove(Keychain::Done done)
{
    removal_ = keychain_.remove(
        QString(keychainService), QString(refreshTokenAccount),
        [done = std::move(done)](const tl::expected<void, KeychainError> &removed) {
            if (!isGone(removed))
                qWarning("[Google] The refresh token is still in the keyring: %s",
                         qUtf8Printable(removed.error().text));
            if (done)
                done(isGone(removed) ? tl::expected<void, KeychainError>() : removed);
        });
}

AuthError keyringError(const KeychainError &error)
{
    return AuthError::http(
        error.kind == KeychainError::Kind::Refused
            ? Words::tr("Your keyring is locked. Unlock it and sign in again.")
            : Words::tr("There is no keyring to keep the sign-in in. It needs a running one, such "
                        "as GNOME Keyring or KWallet, and is kept nowhere else."));
}

} // namespace quillmere
