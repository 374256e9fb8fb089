#pragma once

#include "platform/Task.h"

#include <QString>

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

struct KeychainError {
    enum class Kind {
        NotFound,
        Refused,    ///< the user does not let us; do not ask again on our own
        Unavailable ///< there is no keyring, or it does not work
    };
    Kind kind = Kind::Unavailable;
    QString text; ///< for the log
};

/// What keeps the secrets, as far as that can be known without asking the user.
struct KeyringStatus {
    enum class Condition {
        Missing,   ///< nothing does
        Startable, ///< it comes when it is needed
        Empty,     ///< it is there, but has no keyring yet to keep anything in
        Unlocked,
        Locked ///< the user is asked for a password when a secret is needed
    };
    Condition condition = Condition::Missing;
    QString name{}; ///< of the program as people know it; empty if it is an unknown one
    bool operator==(const KeyringStatus &) const = default;
};

/// The user's secrets. There is no plain-text fallback. Main thread only.
class Keychain
{
public:
    using Secret = tl::expected<QString, KeychainError>;

    virtual ~Keychain() = default;

    /// `done` gets the secret once, never from within the call. That can take as long as a person
    /// needs to unlock the keyring. Destroying the Task gives up and `done` is not called.
    virtual Task read(const QString &service, const QString &account,
                      std::function<void(const Secret &)> done) = 0;

    using Done = std::function<void(const tl::expected<void, KeychainError> &)>;

    /// Stores `secret`, in place of one that is there. `done` as above; giving up does not undo it.
    virtual Task write(const QString &service, const QString &account, const QString &secret,
                       Done done) = 0;

    /// Deletes a secret; that there is none is an error of the kind NotFound.
    virtual Task remove(const QString &service, const QString &account, Done done) = 0;

    /// `listener` gets what is there soon and then each time it changes, until the Task is
    /// destroyed. Starts nothing and asks nobody for a password.
    virtual Task watchKeyring(std::function<void(const KeyringStatus &)> listener) = 0;
};

} // namespace quillmere
