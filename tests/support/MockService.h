#pragma once

#include "support/BusServer.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <sys/prctl.h>

namespace quillmere {

inline const QString mock = QStringLiteral("org.freedesktop.DBus.Mock");

/// A service with the objects and signals of the real one, made by a template of dbusmock.
class MockService
{
public:
    MockService(const BusServer &bus, QString name, QString path)
        : connection_(bus.connect())
        , name_(std::move(name))
        , path_(std::move(path))
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
            environment.insert(QString::fromLatin1(variable), bus.address());
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
    ~MockService() { stop(); }

    void start(const QString &templateName)
    {
        process_.start(QStringLiteral("/usr/bin/python3"),
                       {QStringLiteral("-m"), QStringLiteral("dbusmock"),
                        QStringLiteral("--template"), templateName});
        const auto ping = [this] {
            return call(path_, QStringLiteral("org.freedesktop.DBus.Peer"), "Ping", {}).type() ==
                   QDBusMessage::ReplyMessage;
        };
        if (!eventually(ping))
            throw std::runtime_error("no mock of " + name_.toStdString());
    }
    /// Changes properties, and tells of it as the real one does.
    void update(const QString &path, const QString &interface, const QVariantMap &properties)
    {
        call(path, mock, "UpdateProperties", {interface, properties});
    }
    void stop()
    {
        process_.kill();
        process_.waitForFinished();
    }

    QDBusMessage call(const QString &path, const QString &interface, const char *method,
                      const QVariantList &arguments)
    {
        auto message =
            QDBusMessage::createMethodCall(name_, path, interface, QString::fromLatin1(method));
        message.setArguments(arguments);
        return connection_.call(message);
    }

private:
    QDBusConnection connection_;
    QString name_;
    QString path_;
    QProcess process_;
};

/// Tests against services of a private bus.
struct ServiceTest : testing::Test {
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "ServiceTest";
        static char *argv[] = {name, nullptr};
        static QCoreApplication application(argc, argv);
    }

    BusServer bus;
};

} // namespace quillmere
