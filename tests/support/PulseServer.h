#pragma once

#include "support/BusServer.h"

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <csignal>
#include <optional>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>

namespace quillmere {

/// A real sound server of our own, PulseAudio or PipeWire, without hardware, in a runtime directory
/// of its own. Creating the object points this process and its children at that directory; start()
/// and startPipeWire() start the server.
class PulseServer
{
public:
    PulseServer()
    {
        if (!directory_.isValid())
            throw std::runtime_error("no temporary directory");
        for (const char *name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "DISPLAY", "PIPEWIRE_REMOTE",
                                 "DBUS_SESSION_BUS_ADDRESS"})
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
        process_.setProcessChannelMode(QProcess::ForwardedOutputChannel);
        launch(process_, QStringLiteral("pulseaudio"), arguments);
        waitFor([] { return run({QStringLiteral("info")}).exitCode == 0; });
    }

    /// Starts PipeWire with its session manager and its PulseAudio face, and waits for it. It has
    /// no sinks but its placeholder.
    void startPipeWire()
    {
        if (!bus_)
            bus_.emplace(); // the session manager does not work without one
        for (const char *name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
            qputenv(name, bus_->address().toUtf8());
        launch(pipeWire_, QStringLiteral("pipewire"), {});
        // Its socket is there before it listens, and who comes in between gives up for good.
        waitFor([] {
            return run({QStringLiteral("info"), QStringLiteral("0")}, QStringLiteral("pw-cli"))
                       .exitCode == 0;
        });
        launch(sessionManager_, QStringLiteral("wireplumber"), {});
        launch(process_, QStringLiteral("pipewire-pulse"), {});
        waitForDefault(QStringLiteral("auto_null"));
    }

    /// Until PipeWire's session manager has chosen this sink: the server names one of its own
    /// before that, but cannot change it, and has nothing to play to.
    static void waitForDefault(const QString &sink)
    {
        waitFor([&sink] {
            return run({QStringLiteral("0"), QStringLiteral("default.audio.sink")},
                       QStringLiteral("pw-metadata"))
                .output.contains(u'"' + sink + u'"');
        });
    }

    /// Ends it the hard way, leaving its socket behind as a crash does.
    void kill()
    {
        for (QProcess *process : {&process_, &sessionManager_, &pipeWire_}) {
            process->kill();
            process->waitForFinished();
        }
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

    /// Answers the module's number, for unload-module. `properties` are words of key=value.
    QString loadSink(const QString &name, const QString &properties = {})
    {
        QStringList arguments = QStringList(QStringLiteral("load-module")) + nullSink(name);
        if (!properties.isEmpty())
            arguments << QStringLiteral("sink_properties=\"%1\"").arg(properties);
        const Result result = run(arguments);
        if (result.exitCode != 0)
            throw std::runtime_error("no sink " + name.toStdString());
        return result.output;
    }

private:
    struct Result {
        int exitCode;
        QString output;
    };

    static void launch(QProcess &process, const QString &program, const QStringList &arguments)
    {
        process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
    }

    template <class Predicate>
    static void waitFor(Predicate isThere)
    {
        for (int attempt = 0; attempt < 300; ++attempt) {
            if (isThere())
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        throw std::runtime_error("the sound server did not start");
    }

    static QStringList nullSink(const QString &name)
    {
        return {QStringLiteral("module-null-sink"), QStringLiteral("sink_name=") + name};
    }

    static Result run(const QStringList &arguments,
                      const QString &program = QStringLiteral("pactl"))
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        const bool isDone = process.exitStatus() == QProcess::NormalExit;
        return {isDone ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()).trimmed()};
    }

    QTemporaryDir directory_;
    std::optional<BusServer> bus_;
    QProcess pipeWire_;
    QProcess sessionManager_;
    QProcess process_; ///< what answers as PulseAudio
};

} // namespace quillmere
