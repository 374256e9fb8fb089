#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>

namespace quillmere {

/// A real PulseAudio server of our own, without hardware, in a runtime directory of its own.
/// Creating the object points this process and its children at that directory; start() starts the
/// server.
class PulseServer
{
public:
    PulseServer()
    {
        if (!directory_.isValid())
            throw std::runtime_error("no temporary directory");
        for (const char *name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "DISPLAY"})
            qunsetenv(name);
        for (const char *name : {"XDG_RUNTIME_DIR", "HOME", "XDG_CONFIG_HOME"})
            qputenv(name, directory_.path().toUtf8());
    }
    ~PulseServer() { kill(); }

    /// Starts the server with these null sinks, the first of them the default, and waits for it.
    void start(const QStringList &sinks)
    {
        QStringList arguments{QStringLiteral("-n"),
                              QStringLiteral("--daemonize=no"),
                              QStringLiteral("--exit-idle-time=-1"),
                              QStringLiteral("--use-pid-file=no"),
                              QStringLiteral("--realtime=no"),
                              QStringLiteral("--high-priority=no"),
                              QStringLiteral("--log-target=null")};
        for (const QString &sink : sinks)
            arguments << QStringLiteral("-L") << nullSink(sink).join(u' ');
        arguments << QStringLiteral("-L")
                  << QStringLiteral("module-native-protocol-unix auth-anonymous=1");
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.setProcessChannelMode(QProcess::ForwardedOutputChannel);
        process_.start(QStringLiteral("pulseaudio"), arguments);
        for (int attempt = 0; attempt < 300; ++attempt) {
            if (run({QStringLiteral("info")}).exitCode == 0)
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        throw std::runtime_error("pulseaudio did not start");
    }

    /// Ends it the hard way, leaving its socket behind as a crash does.
    void kill()
    {
        process_.kill();
        process_.waitForFinished();
    }

    /// Something that is no server happens where its socket is.
    void makeNoise()
    {
        QFile file(directory_.filePath(QStringLiteral("pulse/noise")));
        if (!(file.exists() ? file.remove() : file.open(QIODevice::WriteOnly)))
            throw std::runtime_error("no noise in the runtime directory");
    }

    /// Runs pactl with the words of `command` and answers what it printed.
    QString pactl(const QString &command)
    {
        const Result result = run(command.split(u' '));
        if (result.exitCode != 0)
            throw std::runtime_error("pactl " + command.toStdString() + " failed");
        return result.output;
    }

    /// Answers the module's number, for unload-module.
    QString loadSink(const QString &name)
    {
        return pactl(QStringLiteral("load-module ") + nullSink(name).join(u' '));
    }

private:
    struct Result {
        int exitCode;
        QString output;
    };

    static QStringList nullSink(const QString &name)
    {
        return {QStringLiteral("module-null-sink"), QStringLiteral("sink_name=") + name};
    }

    static Result run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral("pactl"), arguments);
        process.waitForFinished();
        const bool isDone = process.exitStatus() == QProcess::NormalExit;
        return {isDone ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()).trimmed()};
    }

    QTemporaryDir directory_;
    QProcess process_;
};

} // namespace quillmere
