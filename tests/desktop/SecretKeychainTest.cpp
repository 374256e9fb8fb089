#include "platform/linux/keyring/SecretKeychain.h"

#include "support/BusServer.h"
#include "support/Eventually.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;

namespace {

TEST(SecretKeychainTest, AWalletServiceThatStartsSlowlyIsTheKeyring)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    BusServer bus;
    bus.offer(u"org.kde.kwalletd5"_s, u"/usr/bin/python3 "_s + QStringLiteral(SLOW_WALLET));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    qputenv("KDE_SESSION_VERSION", "5");

    SecretKeychain keychain(QDBusConnection::sessionBus());
    QStringList answers;
    const auto answered = [&answers](const Keychain::Secret &secret) {
        answers.append(secret ? *secret : secret.error().text);
    };
    const Task first = keychain.read(u"service"_s, u"first"_s, answered);
    const Task second = keychain.read(u"service"_s, u"second"_s, answered);
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_TRUE(eventually([&answers] { return answers.size() == 2; }));
    EXPECT_EQ(answers, (QStringList{u"service first"_s, u"service second"_s}));

    SecretKeychain quitting(QDBusConnection::sessionBus());
    const Task read = quitting.read(u"service"_s, u"never asked for"_s, answered);
}

} // namespace
