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
};

} // namespace quillmere
