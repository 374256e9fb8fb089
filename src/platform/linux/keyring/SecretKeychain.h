#pragma once

#include "platform/Keychain.h"

namespace quillmere {

/// The keyring of the desktop, by QtKeychain; under its attributes a secret's service is "server"
/// and its account is "user". Main thread only.
class SecretKeychain : public Keychain
{
public:
    Task read(const QString &service, const QString &account,
              std::function<void(const Secret &)> done) override;
    Task write(const QString &service, const QString &account, const QString &secret,
               Done done) override;
    Task remove(const QString &service, const QString &account, Done done) override;
};

} // namespace quillmere
