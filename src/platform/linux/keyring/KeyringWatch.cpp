#include "platform/linux/keyring/KeyringWatch.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;

constexpr QLatin1StringView service{"org.freedesktop.secrets"};
constexpr QLatin1StringView servicePath{"/org/freedesktop/secrets"};
constexpr QLatin1StringView serviceInterface{"org.freedesktop.Secret.Service"};
constexpr QLatin1StringView collectionInterface{"org.freedesktop.Secret.Collection"};
constexpr QLatin1StringView walletInterface{"org.kde.KWallet"};

/// What else the programs that serve secrets are called on the bus.
struct Companion {
    QLatin1StringView busName;
    QLatin1StringView title;
};

constexpr QLatin1StringView walletTitle{"KWallet"};

constexpr std::array companions{
    Companion{QLatin1StringView{"org.gnome.keyring"}, QLatin1StringView{"GNOME Keyring"}},
    Companion{QLatin1StringView{"org.kde.kwalletd5"}, walletTitle},
    Companion{QLatin1StringView{"org.kde.kwalletd6"}, walletTitle},
    Companion{QLatin1StringView{"org.kde.secretservicecompat"}, walletTitle},
    Companion{QLatin1StringView{"org.keepassxc.KeePassXC.MainWindow"},
              QLatin1StringView{"KeePassXC"}},
};

/// Which of them would be started is only clear if there is one.
QString startableName(const QStringList &startable)
{
    QStringList titles;
    for (const Companion &companion : companions)
        if (startable.contains(companion.busName) && !titles.contains(companion.title))
            titles.append(companion.title);
    return titles.size() == 1 ? titles.front() : QString();
}

QDBusMessage question(const QString &destination, const QString &path, QLatin1StringView interface,
                      const char *method, const QVariantList &arguments = {})
{
    auto message =
        QDBusMessage::createMethodCall(destination, path, interface, QString::fromLatin1(method));
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

QDBusMessage questionToBus(const char *method, const QVariantList &arguments = {})
{
    return question(bus::daemonName, bus::daemonPath, bus::daemonName, method, arguments);
}

QString walletPath(const QString &wallet)
{
    return QStringLiteral("/modules/") + wallet.section(u'.', -1);
}

} // namespace

QString KeyringWatch::walletOfSession()
{
    const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    if (!desktops.contains(QStringLiteral("KDE")))
        return {};
    return QStringLiteral("org.kde.kwalletd") + qEnvironmentVariable("KDE_SESSION_VERSION");
}

KeyringWatch::KeyringWatch(const QDBusConnection &sessionBus, const QString &wallet,
                           Listener listener)
    : wallet_(wallet)
    , listener_(std::move(listener))
    , bus_(sessionBus)
    , serviceWatch_(sessionBus, service, [this](const QString &owner) {
        serviceOwner_ = owner;
        subscribe(owner, servicePath, serviceInterface,
                  {QStringLiteral("CollectionCreated"), QStringLiteral("CollectionDeleted"),
                   QStringLiteral("CollectionChanged")});
        look();
    })
{
    if (wallet_.isEmpty()) {
        walletOwner_ = QString();
        return;
    }
    walletWatch_.emplace(sessionBus, wallet_, [this](const QString &owner) {
        walletOwner_ = owner;
        subscribe(owner, walletPath(wallet_), walletInterface,
                  {QStringLiteral("walletOpened"), QStringLiteral("walletClosed")});
        look();
    });
}

void KeyringWatch::subscribe(const QString &owner, const QString &path, QLatin1StringView interface,
                             const QStringList &signalNames)
{
    if (owner.isEmpty())
        return;
    for (const QString &name : signalNames)
        bus_.connect(owner, path, interface, name, this, SLOT(changed()));
}

void KeyringWatch::changed()
{
    look();
}

void KeyringWatch::look()
{
    if (!walletOwner_ || !serviceOwner_)
        return;
    calls_.emplace(bus_); // what was asked before is no longer of interest
    calls_->call(questionToBus("ListActivatableNames"), answerLimit, [this](const BusReply &reply) {
        found(reply ? reply->value(0).toStringList() : QStringList());
    });
}

void KeyringWatch::found(const QStringList &startable)
{
    if (!walletOwner_->isEmpty())
        return askWallet();
    if (!wallet_.isEmpty() && startable.contains(wallet_))
        return tell(Condition::Startable, walletTitle);
    if (!serviceOwner_->isEmpty())
        return askName(0);
    if (startable.contains(service))
        return tell(Condition::Startable, startableName(startable));
    tell(Condition::Missing, {});
}

void KeyringWatch::askName(std::size_t companion)
{
    name_.clear();
    if (companion == companions.size())
        return askCollection();
    const auto &[busName, title] = companions.at(companion);
    calls_->call(questionToBus("GetNameOwner", {QString(busName)}), answerLimit,
                 [this, companion, title = title](const BusReply &reply) {
                     if (!reply || reply->value(0).toString() != *serviceOwner_)
                         return askName(companion + 1);
                     name_ = title;
                     askCollection();
                 });
}

void KeyringWatch::askCollection()
{
    calls_->call(question(*serviceOwner_, servicePath, serviceInterface, "ReadAlias",
                          {QStringLiteral("default")}),
                 answerLimit, [this](const BusReply &reply) {
                     if (!reply)
                         return failed(reply.error());
                     const QString path = reply->value(0).value<QDBusObjectPath>().path();
                     if (path.size() < 2) // "/" stands for none
                         return tell(Condition::Empty, name_);
                     askWhetherLocked(path);
                 });
}

void KeyringWatch::askWhetherLocked(const QString &collection)
{
    calls_->call(question(*serviceOwner_, collection, bus::propertiesInterface, "Get",
                          {QString(collectionInterface), QStringLiteral("Locked")}),
                 answerLimit, [this](const BusReply &reply) {
                     if (!reply)
                         return failed(reply.error());
                     const bool isLocked = reply->value(0).value<QDBusVariant>().variant().toBool();
                     tell(isLocked ? Condition::Locked : Condition::Unlocked, name_);
                 });
}

void KeyringWatch::askWallet()
{
    calls_->call(question(*walletOwner_, walletPath(wallet_), walletInterface, "networkWallet"),
                 answerLimit, [this](const BusReply &reply) {
                     if (!reply)
                         return failed(reply.error());
                     askWhetherOpen(reply->value(0).toString());
                 });
}

void KeyringWatch::askWhetherOpen(const QString &walletName)
{
    calls_->call(
        question(*walletOwner_, walletPath(wallet_), walletInterface, "isOpen", {walletName}),
        answerLimit, [this](const BusReply &reply) {
            if (!reply)
                return failed(reply.error());
            tell(reply->value(0).toBool() ? Condition::Unlocked : Condition::Locked, walletTitle);
        });
}

void KeyringWatch::failed(const QDBusError &error)
{
    qWarning("[Keyring] It does not answer: %s", qUtf8Printable(error.message()));
    tell(Condition::Missing, {});
}

void KeyringWatch::tell(Condition condition, const QString &name)
{
    const KeyringStatus status{condition, name};
    if (std::exchange(told_, status) != status)
        listener_(status);
}

} // namespace quillmere
