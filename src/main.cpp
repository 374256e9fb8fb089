#include "app/GoogleAccount.h"
#include "app/MediaPlayback.h"
#include "app/QuillmereApp.h"
#include "platform/ApplicationLauncher.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/core/UnixSignals.h"
#include "platform/linux/core/XdgPaths.h"
#include "platform/linux/dbus/DBusService.h"
#include "platform/linux/dbus/LaunchRequest.h"
#include "settingswindow/SettingsWindow.h"
#include "setupwindow/OnboardingController.h"
#include "views/DashboardModel.h"
#include "views/Glyphs.h"
#include "views/GoogleAccountModel.h"
#include "views/IslandModel.h"
#include "views/IslandWindow.h"
#include "views/MediaModel.h"

#include <QClipboard>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QLocale>
#include <QSessionManager>
#include <QTranslator>

#include <cstdio>
#include <malloc.h>

using namespace quillmere;

namespace {

TrayIcon trayIcon(const QString &symbol)
{
    Glyphs &glyphs = Glyphs::shared();
    if (!glyphs.contains(symbol))
        return {};
    TrayIcon icon = installedTrayIcon(Glyphs::iconName(symbol));
    for (const int size : {22, 24, 44})
        icon.images.append(glyphs.image(symbol, size, Qt::white));
    return icon;
}

/// The running program: window, services, application and view, taken down in reverse.
class Program
{
public:
    Program(RunLoop &runLoop, DBusService &bus)
        : bus_(bus)
        , platform_(runLoop, window_, bus, &trayIcon)
        , app_(platform_.services(), xdg::stateHome(), QStringLiteral(QUILLMERE_VERSION))
        , onboardingController_(platform_.services(), app_.settings())
    {
        app_.appDelegate().onShowOnboarding = [this] { onboardingController_.show(); };
        onboardingController_.onUnloaded = [] { malloc_trim(0); };
        app_.appDelegate().onIslandCreated = [this](Island island) { show(island); };
        app_.launch([this] {
            // A window that is closed by quitting was not left by its user.
            onboardingController_.putAway();
            bus_.stop([] { QCoreApplication::quit(); });
        });
        offerSettings();
    }

    ~Program()
    {
        settingsWindow_.reset();
        googleAccount_.reset();
        app_.terminate();
        platform_.flush();
        window_.clearIsland();
    }

    void terminate() { app_.appDelegate().terminate(); }

    void save() { platform_.flush(); }

private:
    void show(Island island)
    {
        Platform &services = platform_.services();
        AppDelegate &delegate = app_.appDelegate();
        model_.emplace(app_.hudManager(), island.contentView, island.panel, app_.settings(),
                       services.appearance, island.outputPicker);
        dashboard_.emplace(services.runLoop, app_.settings(), app_.hudManager(), island.contentView,
                           DashboardSources{.outputPicker = island.outputPicker,
                                            .fileTray = island.fileTray,
                                            .claudeCode = island.claudeCode,
                                            .weather = island.weather,
                                            .systemLoad = island.systemLoad,
                                            .timers = island.timers},
                           services.appearance);
        const auto openLink = [](const QUrl &link) { QDesktopServices::openUrl(link); };
        QObject::connect(&*model_, &IslandModel::linkActivated, openLink);
        QObject::connect(
            &*model_, &IslandModel::applicationWanted,
            [&services](const QString &bundleID) { services.applicationLauncher.open(bundleID); });
        QObject::connect(&*dashboard_, &DashboardModel::linkActivated, openLink);
        QObject::connect(&*model_, &IslandModel::dragOverChanged,
                         [&delegate](bool over) { delegate.islandDragChanged(over); });
        QObject::connect(
            &*model_, &IslandModel::filesDropped,
            [&delegate](const QList<QUrl> &files) { delegate.filesDroppedOnIsland(files); });
        connect(*dashboard_->media(), island.media);
        window_.setIsland(*model_, *dashboard_);
    }

    void offerSettings()
    {
        AppDelegate &delegate = app_.appDelegate();
        googleAccount_.emplace(delegate.google()->authManager(), app_.settings());
        const auto openAddress = [](const QUrl &address) { QDesktopServices::openUrl(address); };
        QObject::connect(&*googleAccount_, &GoogleAccountModel::linkActivated, openAddress);
        settingsWindow_.emplace(
            SettingsServices{.platform = platform_.services(),
                             .settings = app_.settings(),
                             .hudManager = app_.hudManager(),
                             .outputPicker = *delegate.outputPicker(),
                             .messages = *delegate.messages(),
                             .weather = *delegate.weather(),
                             .claudeCode = *delegate.claudeCode(),
                             .version = QStringLiteral(QUILLMERE_VERSION),
                             .logFolder = xdg::stateHome() + QStringLiteral("/Logs/Quillmere"),
                             .localKeyWritten = [this] { app_.localKeyWritten(); },
                             .openAddress = openAddress,
                             .unloaded = [] { malloc_trim(0); },
                             .googleAccount = &*googleAccount_});
    }

    static void connect(MediaModel &model, MediaPlayback &playback)
    {
        const auto on = [&model](auto signal, auto action) {
            QObject::connect(&model, signal, &model, action);
        };
        on(&MediaModel::togglePlayPauseRequested, [&playback] { playback.togglePlayPause(); });
        on(&MediaModel::nextRequested, [&playback] { playback.nextTrack(); });
        on(&MediaModel::previousRequested, [&playback] { playback.previousTrack(); });
        on(&MediaModel::seekRequested, [&playback](double fraction) { playback.seek(fraction); });
        on(&MediaModel::shuffleRequested, [&playback] { playback.toggleShuffle(); });
        on(&MediaModel::repeatRequested, [&playback] { playback.cycleRepeat(); });
        playback.onPlayModeChanged = [&model, &playback] {
            model.setPlayMode(playback.isShuffling(), playback.repeatMode());
        };
        on(&MediaModel::linkActivated, [](const QUrl &link) { QDesktopServices::openUrl(link); });
        on(&MediaModel::copyRequested,
           [](const QString &text) { QGuiApplication::clipboard()->setText(text); });
    }

    DBusService &bus_;
    IslandWindow window_;
    LinuxPlatform platform_;
    QuillmereApp app_;
    OnboardingController onboardingController_;
    std::optional<IslandModel> model_;
    std::optional<DashboardModel> dashboard_;
    std::optional<GoogleAccountModel> googleAccount_;
    std::optional<SettingsWindow> settingsWindow_;
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
    // An island that draws a few pixels now and then needs no GPU stack in memory.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// Into the first of the user's languages that there is. The texts are English as they stand.
void translate(QTranslator &translator)
{
    for (QString language : QLocale::system().uiLanguages()) {
        if (language == QLatin1StringView("en") || language.startsWith(QLatin1StringView("en-")))
            return;
        if (translator.load(QStringLiteral(":/translations/quillmere_") +
                            language.replace(u'-', u'_'))) {
            QCoreApplication::installTranslator(&translator);
            return;
        }
    }
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
    std::optional<WindowSystemChoice> choice(std::in_place);
    QGuiApplication application(argc, argv);
    choice.reset();
    QGuiApplication::setApplicationName(QStringLiteral("quillmere"));
    QGuiApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillmere.Quillmere"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QTranslator translator;
    translate(translator);
    // Of itself it follows the translation in use only: dates and names are the user's in any case.
    QGuiApplication::setLayoutDirection(QLocale().textDirection());

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
