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
/// services and so starts none but those on offer.
class BusServer
{
public:
    BusServer()
    {
        configure({});
        start();
    }

    ~BusServer() { stop(); }

    /// Ends the daemon at once, as a crash would.
    void stop()
    {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    /// Starts it anew, at the same address.
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

    const QString &address() const { return address_; }

    /// Has the bus start `command` when someone calls `name`.
    void offer(const QString &name, const QString &command)
    {
        write(name + QStringLiteral(".service"),
              QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command));
        reload();
    }

    /// Has the bus refuse calls of this method; of none if it is empty.
    void forbid(const QString &method)
    {
        configure(
            method.isEmpty()
                ? QString()
                : QStringLiteral("<deny send_interface='org.freedesktop.DBus' send_member='%1'/>")
                      .arg(method));
        reload();
    }

    /// A connection of its own, as another program would have.
    QDBusConnection connect() const
    {
        static int count = 0;
        return QDBusConnection::connectToBus(address_, QStringLiteral("test-%1").arg(++count));
    }

private:
    void configure(const QString &rule)
    {
        write(QStringLiteral("bus.conf"),
              QStringLiteral("<busconfig><type>session</type><listen>unix:path=%1/bus</listen>"
                             "<auth>EXTERNAL</auth><servicedir>%1</servicedir>"
                             "<policy context='default'><allow own='*'/>"
                             "<allow send_destination='*' eavesdrop='true'/>"
                             "<allow eavesdrop='true'/>%2</policy></busconfig>")
                  .arg(directory_.path(), rule));
    }

    void reload() const
    {
        const QString daemon = QStringLiteral("org.freedesktop.DBus");
        connect().call(QDBusMessage::createMethodCall(daemon,
                                                      QStringLiteral("/org/freedesktop/DBus"),
                                                      daemon, QStringLiteral("ReloadConfig")));
    }

    void write(const QString &name, const QString &text)
    {
        QFile file(directory_.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            throw std::runtime_error("cannot configure the bus");
    }

    QTemporaryDir directory_;
    QProcess daemon_;
    QString address_;
};

} // namespace quillmere
