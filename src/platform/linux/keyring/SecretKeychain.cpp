#include "platform/linux/keyring/SecretKeychain.h"

#include "platform/linux/keyring/KeyringWatch.h"

#include <qt6keychain/keychain.h>

#include <memory>
#include <utility>

namespace quillmere {

namespace {

KeychainError::Kind kindOf(QKeychain::Error error)
{
    switch (error) {
    case QKeychain::EntryNotFound:
        return KeychainError::Kind::NotFound;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return KeychainError::Kind::Refused;
    default:
        return KeychainError::Kind::Unavailable;
    }
}

KeychainError errorOf(const QKeychain::Job &job)
{
    return {kindOf(job.error()), job.errorString()};
}

tl::expected<void, KeychainError> outcomeOf(const QKeychain::Job &job)
{
    if (job.error() == QKeychain::NoError)
        return {};
    return tl::unexpected(errorOf(job));
}

Keychain::Secret secretOf(const QKeychain::ReadPasswordJob &job)
{
    if (job.error() == QKeychain::NoError)
        return job.textData();
    return tl::unexpected(errorOf(job));
}

/// The job ends itself.
template <class Job>
Task run(Job *job, const QString &account, std::function<void(const Job &)> done)
{
    job->setKey(account);
    const auto isWanted = std::make_shared<bool>(true);
    // Queued, as the job may be over before start() returns.
    QObject::connect(
        job, &QKeychain::Job::finished, job,
        [job, isWanted, done = std::move(done)] {
            if (*isWanted)
                done(*job);
        },
        Qt::QueuedConnection);
    job->start();
    return Task([isWanted] { *isWanted = false; });
}

} // namespace

Task SecretKeychain::read(const QString &service, const QString &account,
                          std::function<void(const Secret &)> done)
{
    using Job = QKeychain::ReadPasswordJob;
    return run<Job>(new Job(service), account,
                    [done = std::move(done)](const Job &job) { done(secretOf(job)); });
}

Task SecretKeychain::write(const QString &service, const QString &account, const QString &secret,
                           Done done)
{
    using Job = QKeychain::WritePasswordJob;
    auto *job = new Job(service);
    job->setTextData(secret);
    return run<Job>(job, account,
                    [done = std::move(done)](const Job &job) { done(outcomeOf(job)); });
}

Task SecretKeychain::remove(const QString &service, const QString &account, Done done)
{
    using Job = QKeychain::DeletePasswordJob;
    return run<Job>(new Job(service), account,
                    [done = std::move(done)](const Job &job) { done(outcomeOf(job)); });
}

Task SecretKeychain::watchKeyring(std::function<void(const KeyringStatus &)> listener)
{
    auto watch = std::make_shared<KeyringWatch>(sessionBus_, KeyringWatch::walletOfSession(),
                                                std::move(listener));
    return Task([watch = std::move(watch)]() mutable { watch.reset(); });
}

} // namespace quillmere
