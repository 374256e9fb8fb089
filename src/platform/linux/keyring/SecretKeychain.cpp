#include "platform/linux/keyring/SecretKeychain.h"

#include "platform/linux/keyring/KeyringWatch.h"

#include <qt6keychain/keychain.h>

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration wakeUpLimit = 10s;

/// What the library asks the wallet service of KDE first.
QDBusMessage walletQuestion()
{
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.kwalletd5"), QStringLiteral("/modules/kwalletd5"),
        QStringLiteral("org.kde.KWallet"), QStringLiteral("networkWallet"));
}

bool isOnKde()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE");
}

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

} // namespace

SecretKeychain::SecretKeychain(const QDBusConnection &sessionBus)
    : sessionBus_(sessionBus)
    , isAwake_(!isOnKde())
{
}

SecretKeychain::~SecretKeychain()
{
    qDeleteAll(waiting_);
}

/// The job ends itself.
template <class Job>
Task SecretKeychain::run(Job *job, const QString &account, std::function<void(const Job &)> done)
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
    start(job);
    return Task([isWanted] { *isWanted = false; });
}

/// On KDE the library's first job has the main thread wait for the wallet service, up to half a
/// second while that starts, and then takes another keyring. Called by us first, it is there.
void SecretKeychain::start(QKeychain::Job *job)
{
    if (isAwake_)
        return job->start();
    waiting_.append(job);
    if (wakeUp_)
        return;
    wakeUp_ = std::make_unique<BusCalls>(sessionBus_);
    wakeUp_->call(walletQuestion(), wakeUpLimit, [this](const BusReply &) {
        isAwake_ = true;
        for (QKeychain::Job *waiting : std::exchange(waiting_, {}))
            waiting->start();
    });
}

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
