// Draws the island in its states over two wallpapers, for people to look at:
// ViewGallery DIRECTORY writes numbered pictures, at the scale of QT_SCALE_FACTOR, and prints how
// long the scene takes to come up and how many frames it costs.

#include "platform/Symbols.h"
#include "support/IslandFixture.h"
#include "views/IslandWindow.h"
#include "views/PaintedItem.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

using namespace quillmere;
using namespace std::chrono_literals;

constexpr double hudSeconds = 5;

class Wallpaper : public PaintedItem
{
public:
    explicit Wallpaper(QQuickItem *parent)
        : PaintedItem(parent)
    {
        setZ(-1);
    }
    void setDark(bool dark)
    {
        dark_ = dark;
        update();
    }

protected:
    Drawing drawing() const override
    {
        return {boundingRect(), [box = boundingRect(), brush = dark_ ? night() : dawn()](
                                    QPainter &painter) { painter.fillRect(box, brush); }};
    }

private:
    QBrush night() const
    {
        QRadialGradient gradient(QPointF(0, 0), 1);
        gradient.setColorAt(0, QColor(0x7a, 0xa7, 0xd8));
        gradient.setColorAt(0.45, QColor(0x3c, 0x5a, 0x93));
        gradient.setColorAt(1, QColor(0x1f, 0x2b, 0x52));
        QBrush brush(gradient);
        brush.setTransform(QTransform(1.2 * width(), 0, 0, 1.6 * height(), 0.2 * width(), 0));
        return brush;
    }
    QBrush dawn() const
    {
        QLinearGradient gradient(0, 0, width(), height());
        gradient.setColorAt(0, QColor(0xf6, 0xe7, 0xd6));
        gradient.setColorAt(0.5, QColor(0xe9, 0xc9, 0xb6));
        gradient.setColorAt(1, QColor(0xc9, 0xa7, 0xb8));
        return gradient;
    }

    bool dark_ = true;
};

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
        wallpaper.setSize(window.size());
        QElapsedTimer clock;
        clock.start();
        window.setIsland(&island);
        const qint64 built = clock.elapsed();
        window.show();
        QEventLoop loop;
        QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
        loop.exec();
        std::printf("scene built in %lld ms, first frame at %lld ms\n", built, clock.elapsed());
        wait(400);
    }

    void clear()
    {
        hud.dismissCurrentHUD();
        runLoop.advance(1s);
        for (const QString &key : fixture.defaults.values.keys())
            fixture.defaults.changeFromOutside(key, {});
        wait(900);
    }

    IslandWindow window;
    Wallpaper wallpaper{window.contentItem()};
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

QImage artwork()
{
    QImage image(300, 200, QImage::Format_RGB32);
    QRadialGradient gradient(75, 40, 260);
    gradient.setColorAt(0, QColor(0xff, 0xd9, 0xa0));
    gradient.setColorAt(0.4, QColor(0xff, 0x8a, 0x5c));
    gradient.setColorAt(0.75, QColor(0xb4, 0x32, 0x7a));
    gradient.setColorAt(1, QColor(0x3b, 0x1c, 0x5a));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

void showPercentages(Stage &stage)
{
    stage.fixture.settings.showVolumePercentage.set(true);
    stage.fixture.settings.showBrightnessPercentage.set(true);
}

void volumeIn(Stage &stage, HUDColorTheme theme, double percent)
{
    showPercentages(stage);
    stage.fixture.settings.soundHUDColorTheme.set(theme);
    stage.hud.showVolume(percent, hudSeconds);
}

void brightnessIn(Stage &stage, HUDAppearanceStyle style, double percent)
{
    showPercentages(stage);
    stage.fixture.settings.displayAppearanceStyle.set(style);
    stage.hud.showBrightness(percent, hudSeconds);
}

void volume(Stage &stage, double percent)
{
    showPercentages(stage);
    stage.hud.showVolume(percent, hudSeconds);
}

std::vector<Scene> scenes()
{
    const auto spring = [](Stage &stage) { stage.hud.showVolume(46, hudSeconds); };
    return {
        {"collapsed", [](Stage &) {}},
        {"volume-46-percent", [](Stage &stage) { volume(stage, 46); }},
        {"volume-46", spring},
        {"volume-8", [](Stage &stage) { stage.hud.showVolume(8, hudSeconds); }},
        {"volume-1", [](Stage &stage) { stage.hud.showVolume(1, hudSeconds); }},
        {"volume-100-bump", [](Stage &stage) { stage.hud.showVolume(100, hudSeconds); }},
        {"volume-100-percent-bump", [](Stage &stage) { volume(stage, 100); }},
        {"mute-bump", [](Stage &stage) { stage.hud.showVolume(0, hudSeconds); }},
        {"mute-settled",
         [](Stage &stage) {
             stage.hud.showVolume(0, hudSeconds);
             stage.runLoop.advance(360ms);
         }},
        {"mute-no-label",
         [](Stage &stage) {
             stage.fixture.settings.soundHideLabel.set(true);
             stage.hud.showVolume(0, hudSeconds);
             stage.runLoop.advance(360ms);
         }},
        {"volume-decibel", [](Stage &stage) { volumeIn(stage, HUDColorTheme::Decibel, 88); }},
        {"volume-accent", [](Stage &stage) { volumeIn(stage, HUDColorTheme::Accent, 66); }},
        {"brightness-accent",
         [](Stage &stage) { brightnessIn(stage, HUDAppearanceStyle::Accent, 78); }},
        {"brightness-glow",
         [](Stage &stage) { brightnessIn(stage, HUDAppearanceStyle::Glow, 60); }},
        {"low-battery", [](Stage &stage) { stage.hud.showLowBattery(18, hudSeconds); }},
        {"message",
         [](Stage &stage) {
             stage.hud.show(message("Ada Lovelace",
                                    "Are we still on for six? I found the table by the window, and "
                                    "they keep it until seven. After that we can walk home.",
                                    symbols::island),
                            false, hudSeconds);
         }},
        {"message-picture-right-to-left-text",
         [](Stage &stage) {
             auto content =
                 message("\u05e9\u05dc\u05d5\u05dd \u202e<b>Ada</b>",
                         "first\nsecond \u2066third \u05d0\u05d1\u05d2", symbols::island);
             content.artworkImage = artwork();
             stage.hud.show(content, false, hudSeconds);
         }},
        {"device",
         [](Stage &stage) {
             auto content = message("Headphones", "Connected", symbols::speakerWave2);
             content.type = HUDContent::HUDType::Bluetooth;
             content.level = 0.83;
             stage.hud.show(content, false, hudSeconds);
         }},
        {"spring-050ms", spring, 50},
        {"spring-100ms", spring, 100},
        {"spring-150ms", spring, 150},
        {"spring-200ms", spring, 200},
        {"spring-300ms", spring, 300},
        {"volume-to-brightness-060ms",
         [](Stage &stage) {
             stage.hud.showVolume(46, hudSeconds);
             wait(900);
             stage.hud.showBrightness(80, hudSeconds);
         },
         60},
        {"leaving-080ms",
         [](Stage &stage) {
             stage.hud.showVolume(46, hudSeconds);
             wait(900);
             stage.hud.dismissCurrentHUD();
         },
         80},
    };
}

void takePictures(Stage &stage, const QDir &dir)
{
    int number = 0;
    for (const Scene &scene : scenes()) {
        stage.wallpaper.setDark(++number % 2 == 1);
        scene.play(stage);
        wait(scene.milliseconds);
        const QString name = QStringLiteral("%1-%2.png")
                                 .arg(number, 2, 10, QChar(u'0'))
                                 .arg(QLatin1StringView(scene.name));
        stage.window.grabWindow().save(dir.filePath(name));
        stage.clear();
    }
}

/// Frames in three seconds in which nothing happens, and in one HUD's coming and going.
void countFrames(Stage &stage)
{
    int frames = 0;
    QObject::connect(&stage.window, &QQuickWindow::frameSwapped, [&frames] { ++frames; });
    const auto report = [&frames](const char *what) {
        std::printf("%s: %d frames\n", what, std::exchange(frames, 0));
    };
    wait(3000);
    report("collapsed, 3 s");
    stage.hud.showVolume(46, hudSeconds);
    wait(1200);
    report("a HUD comes, 1.2 s");
    wait(3000);
    report("HUD on screen, 3 s");
    stage.hud.showVolume(50, hudSeconds);
    wait(600);
    report("level changes, 0.6 s");
    stage.hud.dismissCurrentHUD();
    wait(60);
    stage.window.hide();
    frames = 0;
    wait(1000);
    report("hidden in mid-motion, 1 s");
    stage.window.show();
    wait(1000);
    report("shown again, 1 s");
    wait(3000);
    report("collapsed, 3 s");
}

} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: ViewGallery DIRECTORY [rtl] [FONT]\n", stderr);
        return 2;
    }
    const bool rightToLeft = argc > 2 && QByteArrayView(argv[2]) == QByteArrayView("rtl");
    if (rightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    if (argc > (rightToLeft ? 3 : 2))
        QGuiApplication::setFont(QFont(QString::fromLocal8Bit(argv[argc - 1])));
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.mkpath(QStringLiteral("."))) {
        std::fputs("cannot make the directory\n", stderr);
        return 1;
    }
    Stage stage;
    takePictures(stage, dir);
    countFrames(stage);
    return 0;
}
