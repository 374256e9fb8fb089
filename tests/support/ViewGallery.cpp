// Draws the island in states that no real event can bring about at will, for people to look at:
// ViewGallery DIRECTORY [SCENE] writes numbered pictures, at the scale of QT_SCALE_FACTOR; of the
// scenes whose names begin with SCENE only.

#include "claude/HookEvent.h"
#include "platform/Symbols.h"
#include "support/IslandFixture.h"
#include "views/IslandWindow.h"

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

using namespace quillmere;
using namespace std::chrono_literals;

constexpr double hudSeconds = 5;
const QUrl sampleFile(QStringLiteral("file:///home/ada/Documents/A plan for the summer.pdf"));

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

class Stage : public IslandFixture
{
public:
    Stage()
    {
        const auto device = [this](const char *name, AudioFormFactor formFactor) {
            return audio.add(
                {.facts = {.name = QString::fromUtf8(name), .formFactor = formFactor}});
        };
        audio.setDefault(device("AirPods Pro", AudioFormFactor::Headset));
        device("Built-in Speakers", AudioFormFactor::Speaker);
        device("HDMI / DisplayPort of the living-room television with a very long name",
               AudioFormFactor::Television);
        device("Car", AudioFormFactor::Car);
        device("Headphones at the back", AudioFormFactor::Headphones);
        window.setIsland(island, dashboard);
        window.show();
        wait(400);
    }

    void clear()
    {
        pointer(QEvent::MouseButtonRelease, {});
        pointer(QEvent::MouseMove, {0, 280});
        hud.dismissCurrentHUD();
        hud.clearNowPlaying();
        while (!hud.hudQueue().isEmpty())
            hud.removeActivity(0);
        claudeCode.stop();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        screens.list = {FakeScreens::plain(QStringLiteral("Screen"), {0, 0, 1512, 900})};
        panel.displaysDidChange();
        picker.close();
        tray.remove(sampleFile);
        content.pages().show(IslandPage::Main);
        runLoop.advance(20s);
        for (const QString &key : fixture.defaults.values.keys())
            fixture.defaults.changeFromOutside(key, {});
        wait(900);
    }

    /// The pointer does something at `position`, in units from the island's left end.
    void pointer(QEvent::Type type, QPointF position)
    {
        position.rx() += (window.width() - island.targetWidth()) / 2;
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        buttons = type == QEvent::MouseButtonPress     ? Qt::LeftButton
                  : type == QEvent::MouseButtonRelease ? Qt::NoButton
                                                       : buttons;
        QMouseEvent event(type, position, window.mapToGlobal(position), button, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }

    IslandWindow window;
    Qt::MouseButton buttons = Qt::NoButton;
};

struct Scene {
    const char *name;
    std::function<void(Stage &)> play;
    int milliseconds = 900; ///< after which the picture is taken
};

HUDContent message(const char *title, const char *subtitle, QLatin1StringView symbol)
{
    HUDContent content;
    content.title = QString::fromUtf8(title);
    content.subtitle = QString::fromUtf8(subtitle);
    content.icon = symbol;
    return content;
}

HUDContent sampleDevice()
{
    auto device = message("AirPods Pro", "Connected", symbols::airpods);
    device.type = HUDContent::HUDType::Bluetooth;
    device.level = 0.83;
    return device;
}

QImage sampleArtwork(const QList<QColor> &colors)
{
    QImage image(480, 480, QImage::Format_RGB32);
    QRadialGradient gradient(QPointF(120, 100), 480);
    for (double place = 0; const QColor &color : colors) {
        gradient.setColorAt(place, color);
        place += 1.0 / static_cast<double>(colors.size() - 1);
    }
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

const QList<QColor> sunset{0xffffd9a0, 0xffff8a5c, 0xffb4327a, 0xff3b1c5a};

struct Track {
    const char *title = "First Light Over the Bay";
    const char *artist = "The Testers — Null Output";
    QList<QColor> artwork = sunset;
    bool playing = true;
    double duration = 226;
};

void play(Stage &stage, const Track &track)
{
    HUDContent record = message(track.title, track.artist, symbols::musicNote);
    if (!track.artwork.isEmpty())
        record.artworkImage = sampleArtwork(track.artwork);
    record.isPlaying = track.playing;
    stage.fixture.settings.showFileTray.set(true);
    stage.dashboard.media()->setPlayMode(true, RepeatMode::Nothing);
    stage.hud.updateNowPlaying(record, 65, track.duration);
    stage.runLoop.advance(10ms);
}

/// What the assistant's hook reports.
struct Report {
    const char *event = "PreToolUse";
    const char *project = "/home/ada/quillmere";
    const char *prompt = "make the HUD spring feel right at 2x";
    const char *tool = "Edit";
};

void assist(Stage &stage, const Report &report)
{
    HookEvent event{.cwd = QString::fromUtf8(report.project),
                    .event = QString::fromUtf8(report.event),
                    .tool = QString::fromUtf8(report.tool)};
    if (*report.prompt)
        event.userPrompt = QString::fromUtf8(report.prompt);
    stage.claudeCode.handle(event);
    stage.fixture.settings.showFileTray.set(true);
}

std::vector<Scene> scenes()
{
    const auto volume = [](double percent, HUDColorTheme theme = HUDColorTheme::White) {
        return [=](Stage &stage) {
            stage.fixture.settings.showVolumePercentage.set(true);
            stage.fixture.settings.soundHUDColorTheme.set(theme);
            stage.hud.showVolume(percent, hudSeconds);
        };
    };
    const auto brightness = [](HUDAppearanceStyle style) {
        return [=](Stage &stage) {
            stage.fixture.settings.displayAppearanceStyle.set(style);
            stage.hud.showBrightness(78, hudSeconds);
        };
    };
    const auto dashboard = [](bool activities, const std::function<void(Stage &)> &then = {}) {
        return [=](Stage &stage) {
            stage.fixture.settings.showFileTray.set(true);
            if (activities) {
                stage.hud.show(sampleDevice(), true, 1);
                stage.hud.show(message("Ada Lovelace", "Are we still on for six?", symbols::island),
                               true, 1);
                stage.runLoop.advance(2s);
            }
            stage.content.toggle();
            if (then)
                then(stage);
        };
    };
    const auto shown = [](const HUDContent &content) {
        return [=](Stage &stage) { stage.hud.show(content, false, hudSeconds); };
    };
    const auto media = [](const Track &track, bool activity = false) {
        return [=](Stage &stage) {
            if (activity) {
                stage.hud.show(sampleDevice(), true, 1);
                stage.runLoop.advance(2s);
            }
            play(stage, track);
            stage.content.toggle();
        };
    };
    const auto compact = [](const Track &track, WaveformStyle style) {
        return [=](Stage &stage) {
            stage.fixture.settings.compactWaveformStyle.set(style);
            play(stage, track);
        };
    };
    const auto assistant = [](const Report &report, const std::function<void(Stage &)> &then = {}) {
        return [=](Stage &stage) {
            assist(stage, report);
            if (then)
                then(stage);
        };
    };
    const auto open = [](Stage &stage) { stage.content.toggle(); };
    const auto activity = [](Stage &stage) {
        stage.hud.show(sampleDevice(), true, 1);
        stage.runLoop.advance(2s);
    };
    const Report longReport{
        .project = "/home/ada/a-repository-with-a-name-that-somebody-thought-about-for-an-hour",
        .prompt =
            "\U0001f469\u200d\U0001f4bb <b>please</b> look at\nthe whole of the island, and then "
            "at every \u202ecard of it, one by one and without haste",
        .tool = "mcp__a_server_with_many_tools__and_a_tool_of_many_words_that_never_ends"};
    const Report rightToLeftReport{
        .project = "/home/u/\u05e4\u05e8\u05d5\u05d9\u05e7\u05d8",
        .prompt = "\u05e9\u05dc\u05d5\u05dd, \u05ea\u05e7\u05df "
                  "\u05d0\u05ea HUDManager.cpp \u05d1\u05d1\u05e7\u05e9\u05d4"};
    const Track longTrack{
        .title = "Concerto for Two Violins, Strings and Continuo in D Minor, Largo ma non tanto",
        .artist = "An Orchestra of Quite Some Size With Soloists From Both Sides of the River, "
                  "Conducted by Nobody"};
    const Track rightToLeft{.title = "\u05d0\u05d5\u05e8 \u05e8\u05d0\u05e9\u05d5\u05df "
                                     "\u05de\u05e2\u05dc \u05d4\u05de\u05e4\u05e8\u05e5",
                            .artist = "\u05d4\u05d1\u05d5\u05d3\u05e7\u05d9\u05dd",
                            .artwork = {0xff9be8ff, 0xff2b6cff, 0xff0b1a5a}};
    auto picture = message("\u05e9\u05dc\u05d5\u05dd \u202e<b>Ada</b>",
                           "first\nsecond \u2066third \u05d0\u05d1\u05d2", symbols::island);
    picture.artworkImage = QImage(300, 200, QImage::Format_RGB32);
    picture.artworkImage->fill(QColor(0xff, 0x8a, 0x5c));
    return {
        {"dashboard", dashboard(true)},
        {"dashboard-empty", dashboard(false)},
        {"dashboard-level",
         dashboard(true, [](Stage &stage) { stage.hud.showVolume(64, hudSeconds); })},
        {"dashboard-picker", dashboard(true, [](Stage &stage) { stage.picker.open(); })},
        {"dashboard-tray-empty",
         dashboard(false, [](Stage &stage) { stage.content.pages().step(1); })},
        {"dashboard-tray", dashboard(false,
                                     [](Stage &stage) {
                                         stage.tray.add({sampleFile});
                                         stage.content.pages().step(1);
                                     })},
        {"dashboard-sliding",
         dashboard(true,
                   [](Stage &stage) {
                       wait(900);
                       stage.content.pages().step(1);
                   }),
         100},
        {"dashboard-opening", dashboard(true), 150},
        {"dashboard-classic", dashboard(true,
                                        [](Stage &stage) {
                                            stage.fixture.settings.islandAppearance.set(
                                                IslandAppearance::Classic);
                                        })},
        {"media", media({})},
        {"media-activity", media({}, true)},
        {"media-paused", media({.playing = false})},
        {"media-long", media(longTrack)},
        {"media-right-to-left",
         [=](Stage &stage) {
             QGuiApplication::setLayoutDirection(Qt::RightToLeft);
             media(rightToLeft, true)(stage);
         }},
        {"media-no-artwork", [=](Stage &stage) { media({.artwork = {}})(stage); }},
        {"media-no-duration", media({.duration = 0})},
        {"media-light-artwork", media({.artwork = {0xffffffff, 0xfff3f3f0, 0xffe6e2da}})},
        {"media-dark-artwork", media({.artwork = {0xff101018, 0xff050508, 0xff000000}})},
        {"media-scrolled-title",
         [=](Stage &stage) {
             media(longTrack)(stage);
             wait(900);
             stage.pointer(QEvent::MouseMove, {300, 44});
         },
         2500},
        {"media-dragging",
         [=](Stage &stage) {
             media({})(stage);
             wait(900);
             stage.pointer(QEvent::MouseMove, {300, 89});
             stage.pointer(QEvent::MouseButtonPress, {300, 89});
             stage.pointer(QEvent::MouseMove, {450, 89});
         }},
        {"media-turning",
         [=](Stage &stage) {
             media({})(stage);
             wait(900);
             play(stage, {.title = "Next", .artwork = rightToLeft.artwork});
         },
         90},
        {"media-wings", compact({}, WaveformStyle::Gradient)},
        {"media-wings-plain", compact({}, WaveformStyle::Monochrome)},
        {"media-wings-paused", compact({.artwork = {}, .playing = false}, WaveformStyle::Colored)},
        {"assistant-wings", assistant({})},
        {"assistant-wings-waiting", assistant({.event = "PermissionRequest"})},
        {"assistant-wings-compacting", assistant(longReport,
                                                 [](Stage &stage) {
                                                     stage.claudeCode.handle(
                                                         {.cwd = QStringLiteral("/"),
                                                          .event = QStringLiteral("PreCompact")});
                                                 })},
        {"assistant-wings-long", assistant(longReport)},
        {"assistant-wings-media", assistant({}, [](Stage &stage) { play(stage, {}); })},
        {"assistant-wings-changing",
         assistant({},
                   [](Stage &stage) {
                       wait(900);
                       play(stage, {});
                   }),
         150},
        {"assistant-wings-housing",
         [=](Stage &stage) {
             stage.screens.list = {
                 FakeScreens::notched(QStringLiteral("Screen"), {0, 0, 1512, 900}, 32, 663, 849)};
             stage.panel.displaysDidChange();
             assist(stage, {.event = "PreCompact"});
         }},
        {"assistant", assistant({}, open)},
        {"assistant-waiting", assistant({.event = "PermissionRequest", .tool = "Bash"}, open)},
        {"assistant-compacting", assistant({.event = "PreCompact", .prompt = ""}, open)},
        {"assistant-idle", assistant({.event = "Stop"},
                                     [=](Stage &stage) {
                                         stage.runLoop.advance(150s);
                                         open(stage);
                                     })},
        {"assistant-unknown", assistant({.project = "", .prompt = "", .tool = ""}, open)},
        {"assistant-long", assistant(longReport, open)},
        {"assistant-activity", assistant({},
                                         [=](Stage &stage) {
                                             activity(stage);
                                             open(stage);
                                         })},
        {"assistant-activity-turned", assistant({},
                                                [=](Stage &stage) {
                                                    activity(stage);
                                                    activity(stage);
                                                    open(stage);
                                                    wait(900);
                                                    const QPointF more(552, 154);
                                                    stage.pointer(QEvent::MouseMove, more);
                                                    stage.pointer(QEvent::MouseButtonPress, more);
                                                    stage.pointer(QEvent::MouseButtonRelease, more);
                                                })},
        {"assistant-idle-activity", assistant({.event = "Stop"},
                                              [=](Stage &stage) {
                                                  activity(stage);
                                                  open(stage);
                                              })},
        {"assistant-media", assistant({},
                                      [=](Stage &stage) {
                                          play(stage, {});
                                          open(stage);
                                      })},
        {"assistant-media-activity", assistant({.event = "PermissionRequest"},
                                               [=](Stage &stage) {
                                                   activity(stage);
                                                   play(stage, {});
                                                   open(stage);
                                               })},
        {"assistant-right-to-left", assistant(rightToLeftReport,
                                              [=](Stage &stage) {
                                                  QGuiApplication::setLayoutDirection(
                                                      Qt::RightToLeft);
                                                  activity(stage);
                                                  open(stage);
                                              })},
        {"assistant-wings-right-to-left",
         assistant(rightToLeftReport,
                   [](Stage &) { QGuiApplication::setLayoutDirection(Qt::RightToLeft); })},
        {"assistant-right-to-left-prompt", assistant(rightToLeftReport, open)},
        {"wings",
         [](Stage &stage) {
             stage.fixture.settings.idleActivityMostRecent.set(true);
             stage.hud.show(sampleDevice(), true, 1);
             stage.runLoop.advance(2s);
         }},
        {"volume", volume(46)},
        {"volume-1", volume(1)},
        {"volume-decibel", volume(88, HUDColorTheme::Decibel)},
        {"volume-accent", volume(66, HUDColorTheme::Accent)},
        {"brightness-accent", brightness(HUDAppearanceStyle::Accent)},
        {"brightness-glow", brightness(HUDAppearanceStyle::Glow)},
        {"low-battery", [](Stage &stage) { stage.hud.showLowBattery(18, hudSeconds); }},
        {"message", shown(message("Ada Lovelace",
                                  "Are we still on for six? I found the table by the window, and "
                                  "they keep it until seven. After that we can walk home.",
                                  symbols::island))},
        {"message-picture-right-to-left", shown(picture)},
        {"device", shown(sampleDevice())},
        {"spring-100ms", volume(46), 100},
        {"spring-200ms", volume(46), 200},
    };
}

void takePictures(Stage &stage, const QDir &dir, QLatin1StringView wanted)
{
    int number = 0;
    for (const Scene &scene : scenes()) {
        stage.window.setColor(++number % 2 == 1 ? 0xff3c5a93 : 0xffe9c9b6);
        if (!QLatin1StringView(scene.name).startsWith(wanted))
            continue;
        scene.play(stage);
        wait(scene.milliseconds);
        const QString name = QStringLiteral("%1-%2.png")
                                 .arg(number, 2, 10, QChar(u'0'))
                                 .arg(QLatin1StringView(scene.name));
        stage.window.grabWindow().save(dir.filePath(name));
        stage.clear();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: ViewGallery DIRECTORY [SCENE]\n", stderr);
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.mkpath(QStringLiteral("."))) {
        std::fputs("cannot make the directory\n", stderr);
        return 1;
    }
    Stage stage;
    takePictures(stage, dir, QLatin1StringView(argc > 2 ? argv[2] : ""));
    return 0;
}
