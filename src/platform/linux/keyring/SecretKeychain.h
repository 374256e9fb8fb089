#pragma once

#include "platform/Keychain.h"
#include "platform/linux/dbus/BusCalls.h"

#include <QDBusConnection>
#include <QList>

#include <memory>

namespace QKeychain {
class Job;
}

namespace quillmere {

/// The keyring of the desktop, by QtKeychain; under its attributes a secret's service is "server"
/// and its account is "user". Main thread only.
class SecretKeychain : public Keychain
{
public:
    explicit SecretKeychain(const QDBusConnection &sessionBus);
    ~SecretKeychain() override;
    SecretKeychain(const SecretKeychain &) = delete;
    SecretKeychain &operator=(const SecretKeychain &) = delete;

    Task read(const QString &service, const QString &account,
              std::function<void(const Secret &)> done) override;
    Task write(const QString &service, const QString &account, const QString &secret,
               Done done) override;
    Task remove(const QString &service, const QString &account, Done done) override;
    Task watchKeyring(std::function<void(const KeyringStatus &)> listener) override;

private:
    template <class Job>
    Task run(Job *job, const QString &account, std::function<void(const Job &)> done);
    void start(QKeychain::Job *job);

    QDBusConnection sessionBus_;
    std::unique_ptr<BusCalls> wakeUp_; ///< there once the wallet service has been called
    QList<QKeychain::Job *> waiting_;  ///< for its answer
    bool isAwake_;
};

} // namespace quillmere
