#pragma once

#include "platform/Keychain.h"
#include "platform/linux/dbus/BusOwner.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace quillmere {

/// Follows the keyring of the session: in a session of Plasma its wallet, else, and where there is
/// none, whoever serves secrets on the bus. Only programs that run are asked, by their unique name.
/// Main thread only.
class KeyringWatch : public QObject
{
    Q_OBJECT

public:
    using Listener = std::function<void(const KeyringStatus &)>;

    /// `wallet` is the bus name of Plasma's; empty: not asked. `listener` is never called from
    /// within the constructor.
    KeyringWatch(const QDBusConnection &sessionBus, const QString &wallet, Listener listener);

    static QString walletOfSession();

private:
    using Condition = KeyringStatus::Condition;

    void look();
    void found(const QStringList &startable);
    void askName(std::size_t companion);
    void askCollection();
    void askWhetherLocked(const QString &collection);
    void askWallet();
    void askWhetherOpen(const QString &walletName);
    void failed(const QDBusError &error);
    void tell(Condition condition, const QString &name);
    void subscribe(const QString &owner, const QString &path, QLatin1StringView interface,
                   const QStringList &signalNames);

    Q_SLOT void changed();

    const QString wallet_;
    Listener listener_;
    std::optional<KeyringStatus> told_;
    QDBusConnection bus_;
    QString name_;
    std::optional<QString> walletOwner_; ///< once it is known
    std::optional<QString> serviceOwner_;
    std::optional<BusCalls> calls_; ///< of the latest look
    std::optional<BusOwner> walletWatch_;
    BusOwner serviceWatch_;
};

} // namespace quillmere
