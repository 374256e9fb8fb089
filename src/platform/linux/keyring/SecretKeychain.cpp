#include "platform/linux/keyring/SecretKeychain.h"

#include <QPointer>

#include <qt6keychain/keychain.h>

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

Keychain::Secret secretOf(const QKeychain::ReadPasswordJob &job)
{
    if (job.error() == QKeychain::NoError)
        return job.textData();
    return tl::unexpected(KeychainError{kindOf(job.error()), job.errorString()});
}

} // namespace

Task SecretKeychain::read(const QString &service, const QString &account,
                          std::function<void(const Secret &)> done)
{
    auto *job = new QKeychain::ReadPasswordJob(service); // ends itself
    job->setKey(account);
    auto listener = std::make_shared<QObject>();
    // Queued, as the job may be over before start() returns.
    QObject::connect(
        job, &QKeychain::Job::finished, listener.get(),
        [job = QPointer(job), done = std::move(done)] {
            if (job)
                done(secretOf(*job));
        },
        Qt::QueuedConnection);
    job->start();
    return Task([listener]() mutable { listener.reset(); });
}

} // namespace quillmere
