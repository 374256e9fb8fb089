// Draws the island in states that no real event can bring about at will, for people to look at:
// ViewGallery DIRECTORY writes numbered pictures, at the scale of QT_SCALE_FACTOR.

#include "platform/Symbols.h"
#include "support/IslandFixture.h"
#include "views/IslandWindow.h"

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
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
        hud.dismissCurrentHUD();
        while (!hud.hudQueue().isEmpty())
            hud.removeActivity(0);
        picker.close();
        tray.remove(sampleFile);
        content.pages().show(IslandPage::Main);
        runLoop.advance(20s);
        for (const QString &key : fixture.defaults.values.keys())
            fixture.defaults.changeFromOutside(key, {});
        wait(900);
    }

    IslandWindow window;
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
    const auto dashboard = [](bool activities, std::function<void(Stage &)> then = {}) {
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

void takePictures(Stage &stage, const QDir &dir)
{
    int number = 0;
    for (const Scene &scene : scenes()) {
        stage.window.setColor(++number % 2 == 1 ? 0xff3c5a93 : 0xffe9c9b6);
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
        std::fputs("usage: ViewGallery DIRECTORY\n", stderr);
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.mkpath(QStringLiteral("."))) {
        std::fputs("cannot make the directory\n", stderr);
        return 1;
    }
    Stage stage;
    takePictures(stage, dir);
    return 0;
}
