#pragma once

#include <QProcess>
#include <QRect>
#include <QStringList>

#include <csignal>
#include <memory>
#include <stdexcept>
#include <sys/prctl.h>

namespace quillmere {

/// A program that is ended with its handle, or with the test should that crash.
class ChildProgram
{
public:
    ChildProgram(const QString &program, const QStringList &arguments)
    {
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.setProcessChannelMode(QProcess::SeparateChannels);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(program, arguments);
        if (!process_.waitForStarted())
            throw std::runtime_error(program.toStdString() + " did not start");
    }
    ~ChildProgram() { kill(); }

    QProcess &process() { return process_; }
    void kill()
    {
        process_.kill();
        process_.waitForFinished();
    }

private:
    QProcess process_;
};

/// A virtual X server of our own. Makes itself this process's display; create it before the
/// QGuiApplication.
class XServer
{
public:
    explicit XServer(const QString &screen = QStringLiteral("3432x1080x24"))
        : server_(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), screen, QStringLiteral("+extension"),
                   QStringLiteral("Composite"), QStringLiteral("-noreset"),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp")})
        , before_(qgetenv("DISPLAY"))
    {
        while (!server_.process().canReadLine()) {
            if (!server_.process().waitForReadyRead(30'000))
                throw std::runtime_error("Xvfb gave no display");
        }
        display_ = ':' + server_.process().readLine().trimmed();
        qputenv("DISPLAY", display_);
    }
    ~XServer() { qputenv("DISPLAY", before_); }

    QByteArray display() const { return display_; }
    void kill() { server_.kill(); }

    /// Runs a client to its end and answers what it printed.
    static QByteArray run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished(30'000) || process.exitCode() != 0)
            throw std::runtime_error(program.toStdString() + ' ' +
                                     arguments.join(u' ').toStdString() + ": " +
                                     process.readAllStandardError().toStdString());
        return process.readAllStandardOutput();
    }

    /// Adds a monitor, in native pixels; a name with a leading '*' makes it the primary
    /// one. One of the monitors takes the server's only output, "screen", the others "none".
    static void setMonitor(const QString &name, const QRect &area, const QString &output)
    {
        const auto geometry = QStringLiteral("%1/400x%2/260+%3+%4")
                                  .arg(area.width())
                                  .arg(area.height())
                                  .arg(area.x())
                                  .arg(area.y());
        run(QStringLiteral("xrandr"), {QStringLiteral("--setmonitor"), name, geometry, output});
    }

private:
    ChildProgram server_;
    QByteArray before_;
    QByteArray display_;
};

} // namespace quillmere
