#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <stdexcept>

namespace quillmere {

/// A session bus of the test's own: a real dbus-daemon in a private folder, which knows no other
/// services and so starts none.
class BusServer
{
public:
    BusServer()
    {
        QDir(directory_.path()).mkdir(QStringLiteral("services"));
        QFile file(directory_.filePath(QStringLiteral("bus.conf")));
        const QString text =
            QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus "
                           "Configuration 1.0//EN\" \"http://www.freedesktop.org/standards/dbus/"
                           "1.0/busconfig.dtd\">\n"
                           "<busconfig><type>session</type><keep_umask/>"
                           "<listen>unix:path=%1/bus</listen><auth>EXTERNAL</auth>"
                           "<servicedir>%1/services</servicedir>"
                           "<policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n")
                .arg(directory_.path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            throw std::runtime_error("cannot write the bus configuration");
        file.close();
        start();
    }

    ~BusServer() { stop(); }

    /// Ends the daemon at once, as a crash would.
    void stop()
    {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    const QString &address() const { return address_; }

    /// Has the bus start `command` when someone calls `name`.
    void offer(const QString &name, const QString &command)
    {
        QFile file(directory_.filePath(QStringLiteral("services/%1.service").arg(name)));
        const QString text =
            QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            throw std::runtime_error("cannot write the service file");
        file.close();
        const QString daemon = QStringLiteral("org.freedesktop.DBus");
        connect().call(QDBusMessage::createMethodCall(daemon,
                                                      QStringLiteral("/org/freedesktop/DBus"),
                                                      daemon, QStringLiteral("ReloadConfig")));
    }

    /// A connection of its own, as another program would have.
    QDBusConnection connect() const
    {
        static int count = 0;
        return QDBusConnection::connectToBus(address_, QStringLiteral("test-%1").arg(++count));
    }

private:
    void start()
    {
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        daemon_.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--config-file=") + directory_.filePath(QStringLiteral("bus.conf")),
             QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
             QStringLiteral("--nosyslog"), QStringLiteral("--print-address=1")});
        while (!daemon_.canReadLine()) {
            if (!daemon_.waitForReadyRead())
                throw std::runtime_error("dbus-daemon does not start");
        }
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }

    QTemporaryDir directory_;
    QProcess daemon_;
    QString address_;
};

} // namespace quillmere
