#include "app/QuillmereApp.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/core/UnixSignals.h"
#include "platform/linux/core/XdgPaths.h"
#include "platform/linux/dbus/DBusService.h"
#include "platform/linux/dbus/LaunchRequest.h"
#include "views/IslandModel.h"
#include "views/IslandWindow.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSessionManager>

#include <cstdio>

using namespace quillmere;

namespace {

/// The running program: window, services, application and view, taken down in reverse.
class Program
{
public:
    Program(RunLoop &runLoop, DBusService &bus)
        : bus_(bus)
        , platform_(runLoop, window_, bus.statePublisher(), bus.remoteControl())
        , app_(platform_.services(), xdg::stateHome())
    {
        app_.appDelegate().onIslandCreated = [this](FloatingPanel &panel,
                                                    ContentView &contentView) {
            model_.emplace(app_.hudManager(), contentView, panel, app_.settings());
            window_.setIsland(&*model_);
        };
        app_.launch([this] { bus_.stop([] { QCoreApplication::quit(); }); });
    }

    ~Program()
    {
        app_.terminate();
        platform_.flush();
        window_.setIsland(nullptr);
    }

    void terminate() { app_.appDelegate().terminate(); }

    void save() { platform_.flush(); }

private:
    DBusService &bus_;
    IslandWindow window_;
    LinuxPlatform platform_;
    QuillmereApp app_;
    std::optional<IslandModel> model_;
};

/// The exit status, or nothing when the program is to start with `uris`.
std::optional<int> parseCommandLine(const QStringList &arguments, QStringList &uris)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A small island at the top edge of the screen that shows what just happened."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("URI"),
                                 QStringLiteral("Handed to the running Quillmere."),
                                 QStringLiteral("[URI...]"));
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "quillmere: %s\n", qUtf8Printable(parser.errorText()));
        return 2;
    }
    if (parser.isSet(help)) {
        // There is no application object yet to take the name from.
        std::fputs(qUtf8Printable(parser.helpText().replace(QStringLiteral("<executable_name>"),
                                                            QStringLiteral("quillmere"))),
                   stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::puts("quillmere " QUILLMERE_VERSION);
        return 0;
    }
    uris = parser.positionalArguments();
    return std::nullopt;
}

void prepareEnvironment()
{
    // libpulse runs on the GLib main loop that Qt's dispatcher drives.
    qunsetenv("QT_NO_GLIB");
    // The panel is an X11 window, on a Wayland desktop through its X server.
    if (qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    // An island that draws a few pixels now and then needs no GPU stack in memory.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace

int main(int argc, char **argv)
{
    QStringList uris;
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (const auto status = parseCommandLine(arguments, uris))
        return *status;

    prepareEnvironment();
    const LaunchRequest request{uris, platformDataFromEnvironment()};
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quillmere"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillmere"));
    QGuiApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillmere.Quillmere"));
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QtRunLoop runLoop;
    DBusService bus(runLoop);
    std::optional<Program> program;
    const auto quit = [&program] {
        if (program)
            program->terminate();
        else
            QCoreApplication::quit();
    };
    const UnixSignals signals([&quit](int) { quit(); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, [&program] {
        if (program)
            program->save();
    });
    bus.start(request, [&](DBusService::Role role) {
        if (role == DBusService::Role::Secondary)
            QCoreApplication::quit();
        else
            program.emplace(runLoop, bus);
    });
    const int status = QGuiApplication::exec();
    program.reset();
    return status;
}
