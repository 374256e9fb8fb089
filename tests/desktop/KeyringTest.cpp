#include "platform/linux/keyring/KeyringWatch.h"

#include "support/MockService.h"
#include "support/XServer.h"

#include <QDBusVirtualObject>
#include <QTemporaryDir>

namespace quillmere {
namespace {

using Condition = KeyringStatus::Condition;

const QString wallet = QStringLiteral("org.kde.kwalletd5");
const QString secrets = QStringLiteral("org.freedesktop.secrets");

/// Plasma's, of one wallet.
struct Wallet : QDBusVirtualObject {
    explicit Wallet(const QDBusConnection &connection)
        : bus(connection)
    {
        bus.registerVirtualObject(QStringLiteral("/modules/kwalletd5"), this);
        bus.registerService(wallet);
    }
    ~Wallet() override { bus.unregisterService(wallet); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == QStringLiteral("networkWallet"))
            return connection.send(message.createReply(QStringLiteral("kdewallet")));
        return connection.send(message.createReply(
            isOpen && message.arguments() == QVariantList{QStringLiteral("kdewallet")}));
    }
    void setOpen(bool open)
    {
        isOpen = open;
        auto news = QDBusMessage::createSignal(
            QStringLiteral("/modules/kwalletd5"), QStringLiteral("org.kde.KWallet"),
            open ? QStringLiteral("walletOpened") : QStringLiteral("walletClosed"));
        news << QStringLiteral("kdewallet");
        bus.send(news);
    }

    QDBusConnection bus;
    bool isOpen = false;
};

struct KeyringTest : ServiceTest {
    KeyringTest()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        for (const char *place : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME"})
            qputenv(place, folder.path().toUtf8());
    }

    void watch(const QString &walletName = {})
    {
        told.clear();
        watching.emplace(bus.connect(), walletName,
                         [this](const KeyringStatus &status) { told.append(status); });
        EXPECT_TRUE(told.isEmpty());
    }

    bool becomes(Condition condition, const char *name)
    {
        return eventually([&] {
            return !told.isEmpty() &&
                   told.back() == KeyringStatus{condition, QString::fromLatin1(name)};
        });
    }

    QTemporaryDir folder;
    QList<KeyringStatus> told;
    std::optional<KeyringWatch> watching;
};

TEST_F(KeyringTest, WhatServesSecretsIsFollowedAndNeverStarted)
{
    watch();
    EXPECT_TRUE(becomes(Condition::Missing, ""));
    const QString mark = folder.filePath(QStringLiteral("started"));
    bus.offer(secrets, QStringLiteral("/usr/bin/touch ") + mark);
    watch();
    EXPECT_TRUE(becomes(Condition::Startable, ""));
    bus.offer(QStringLiteral("org.gnome.keyring"), QStringLiteral("/usr/bin/touch ") + mark);
    watch();
    EXPECT_TRUE(becomes(Condition::Startable, "GNOME Keyring"));
    {
        ChildProgram daemon(QStringLiteral("gnome-keyring-daemon"),
                            {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                             QStringLiteral("--components=secrets")});
        daemon.process().write("password");
        daemon.process().closeWriteChannel();
        ASSERT_TRUE(becomes(Condition::Unlocked, "GNOME Keyring"));
        auto lock = QDBusMessage::createMethodCall(
            secrets, QStringLiteral("/org/freedesktop/secrets"),
            QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
        lock << QVariant::fromValue(
            QList{QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))});
        bus.connect().call(lock);
        EXPECT_TRUE(becomes(Condition::Locked, "GNOME Keyring"));
    }
    EXPECT_TRUE(becomes(Condition::Startable, "GNOME Keyring"));
    EXPECT_FALSE(QFile::exists(mark));
}

TEST_F(KeyringTest, AWalletIsAskedInASessionOfItsDesktopOnly)
{
    {
        Wallet kwallet(bus.connect());
        watch();
        EXPECT_TRUE(becomes(Condition::Missing, ""));
        watch(wallet);
        EXPECT_TRUE(becomes(Condition::Locked, "KWallet"));
        kwallet.setOpen(true);
        EXPECT_TRUE(becomes(Condition::Unlocked, "KWallet"));
        kwallet.setOpen(false);
        EXPECT_TRUE(becomes(Condition::Locked, "KWallet"));
    }
    EXPECT_TRUE(becomes(Condition::Missing, ""));
    bus.stop();
    watch(wallet);
    EXPECT_TRUE(becomes(Condition::Missing, ""));
}

} // namespace
} // namespace quillmere
