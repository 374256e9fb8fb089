#include "platform/linux/window/X11PanelWindow.h"

#include "island/FloatingPanel.h"
#include "island/NotchGeometry.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/window/PanelShape.h"
#include "platform/linux/window/QtScreens.h"
#include "platform/linux/window/X11GlobalEvents.h"
#include "support/SettingsFixture.h"
#include "support/X11Desktop.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

const QRect areaA(0, 0, 1512, 982);
const QRect areaB(1512, 0, 1920, 1080);

class Desktop : public X11Desktop
{
public:
    using X11Desktop::X11Desktop;
    void SetUp() override
    {
        X11Desktop::SetUp();
        XServer::setMonitor(u"*QM-A"_s, areaA, u"screen"_s);
        XServer::setMonitor(u"QM-B"_s, areaB, u"none"_s);
        if (!eventually([] { return QGuiApplication::screens().size() == 2; }))
            throw std::runtime_error("no monitors");
    }
};

[[maybe_unused]] const auto *desktop =
    ::testing::AddGlobalTestEnvironment(new Desktop(u"3432x1080x24"_s));

class Canvas : public QRasterWindow
{
public:
    int presses = 0;

private:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    }
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

class X11PanelWindowTest : public ::testing::Test, public SettingsFixture
{
protected:
    void TearDown() override
    {
        panel.reset();
        for (const auto window : windows)
            inspector.closeWindow(window);
        // What the window manager restacks now would bring the next test's panel to the front.
        EXPECT_TRUE(eventually([this] {
            auto known = inspector.property(inspector.root(), "_NET_CLIENT_LIST");
            known.push_back(inspector.activeWindow());
            return std::ranges::find_first_of(known, windows) == known.end();
        }));
    }

    void show()
    {
        panel.emplace(runLoop, screens, globalEvents, notifications, window, settings);
        panel->displaysDidChange();
        ASSERT_TRUE(eventually([&] {
            return inspector.isViewable(id()) && inspector.geometry(id()) == nativeCanvas(areaA);
        }));
    }

    xcb_window_t id() const { return static_cast<xcb_window_t>(canvas.winId()); }
    double scale() const { return canvas.devicePixelRatio(); }
    QRect nativeCanvas(const QRect &monitor) const
    {
        const QSize size = canvasSize * scale();
        return {QPoint(monitor.x() + (monitor.width() - size.width()) / 2, monitor.y()), size};
    }
    /// The island's frame in pixels of the canvas.
    QRect island() const
    {
        const QSizeF size = panel->size();
        return QRectF((canvasSize.width() - size.width()) / 2 * scale(), 0, size.width() * scale(),
                      size.height() * scale())
            .toAlignedRect();
    }
    bool takesInputIn(const QRegion &region)
    {
        return eventually([&] { return inspector.shape(id(), XCB_SHAPE_SK_INPUT) == region; });
    }
    bool isOnTop()
    {
        return eventually([&] { return inspector.stack().back() == id(); });
    }

    xcb_window_t openWindow(const QRect &area, bool fullscreen = false)
    {
        windows.push_back(inspector.openWindow(area, fullscreen));
        const auto opened = windows.back();
        EXPECT_TRUE(eventually([&] { return inspector.activeWindow() == opened; }));
        return opened;
    }
    static void movePointer(QPoint native)
    {
        XServer::run(u"xdotool"_s,
                     {u"mousemove"_s, QString::number(native.x()), QString::number(native.y())});
    }
    static void click(QPoint native, int button = 1)
    {
        movePointer(native);
        XServer::run(u"xdotool"_s, {u"click"_s, QString::number(button)});
    }

    QtRunLoop runLoop;
    X11Inspector inspector;
    X11Observer observer;
    X11GlobalEvents globalEvents{observer.connection()};
    QtScreens screens;
    Canvas canvas;
    X11PanelWindow window{canvas, observer};
    std::optional<FloatingPanel> panel;
    std::vector<xcb_window_t> windows;
};

TEST_F(X11PanelWindowTest, IsAnUnmanagedWindowWithoutShadow)
{
    show();
    const auto stack = inspector.stack();
    EXPECT_NE(std::find(stack.begin(), stack.end(), id()), stack.end()) << "in a frame";
    EXPECT_EQ(inspector.property(id(), "_NET_WM_WINDOW_TYPE"),
              std::vector{inspector.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    EXPECT_EQ(inspector.property(id(), "_COMPTON_SHADOW"), std::vector<std::uint32_t>{0});
    EXPECT_EQ(inspector.property(id(), "_GTK_FRAME_EXTENTS").size(), 4U);
    EXPECT_EQ(canvas.format().alphaBufferSize(), 8);
    EXPECT_FALSE(window.capabilities().hidesFromScreenCapture);
    EXPECT_FALSE(window.capabilities().hidesInOverview);
    const auto clients = inspector.property(inspector.root(), "_NET_CLIENT_LIST");
    EXPECT_EQ(std::find(clients.begin(), clients.end(), id()), clients.end()) << "in the taskbar";
}

TEST_F(X11PanelWindowTest, OnlyTheIslandTakesInput)
{
    show();
    for (const QSizeF size : {QSizeF(126, 32), QSizeF(300, 44), QSizeF(600, 220)}) {
        panel->setSize(size);
        EXPECT_TRUE(takesInputIn(island())) << size.width();
    }
    window.setVisible(false);
    EXPECT_TRUE(takesInputIn({}));
    EXPECT_TRUE(eventually([&] { return !inspector.isViewable(id()); }));

    // A surface made anew, as Qt does now and then, knows nothing of the old one's shape.
    window.setVisible(true);
    canvas.destroy();
    canvas.show();
    EXPECT_TRUE(takesInputIn(island()));
    EXPECT_EQ(inspector.property(id(), "_COMPTON_SHADOW"), std::vector<std::uint32_t>{0});
}

TEST_F(X11PanelWindowTest, StaysAboveAFullScreenWindowAndKnowsOfIt)
{
    settings.hideInFullscreen.set(false);
    show();
    const auto client = openWindow({200, 200, 400, 300});
    EXPECT_TRUE(isOnTop());
    EXPECT_FALSE(window.isCoveredByFullscreen());

    inspector.setFullscreen(client, true);
    EXPECT_TRUE(eventually([&] { return window.isCoveredByFullscreen(); }));
    EXPECT_EQ(inspector.geometry(client), areaA);
    EXPECT_TRUE(isOnTop());

    // The monitor beside it is not covered.
    settings.displaySelection.set(DisplaySelection::Active);
    movePointer({1600, 500});
    panel->displaysDidChange();
    EXPECT_TRUE(eventually([&] { return inspector.geometry(id()) == nativeCanvas(areaB); }));
    EXPECT_FALSE(window.isCoveredByFullscreen());
    movePointer({100, 500});
    panel->displaysDidChange();
    EXPECT_TRUE(window.isCoveredByFullscreen());

    openWindow({300, 300, 200, 200});
    EXPECT_TRUE(eventually([&] { return !window.isCoveredByFullscreen(); }));
    EXPECT_TRUE(isOnTop());
}

TEST_F(X11PanelWindowTest, ComesToTheFrontAgainWhenWindowsAreRestacked)
{
    show();
    windows.push_back(inspector.openWindow(areaA, false, false));
    EXPECT_TRUE(eventually([&] { return inspector.stack().back() == windows.front(); }));
    openWindow({200, 200, 400, 300});
    EXPECT_TRUE(isOnTop());
}

TEST_F(X11PanelWindowTest, MasksItselfWhileNothingComposites)
{
    show();
    const QRegion everything(QRect(QPoint(), canvasSize * scale()));
    const auto bounding = [&] { return inspector.shape(id(), XCB_SHAPE_SK_BOUNDING); };
    EXPECT_TRUE(eventually([&] { return bounding() == silhouette(island(), scale()); }));
    panel->setSize({300, 44});
    EXPECT_TRUE(eventually([&] { return bounding() == silhouette(island(), scale()); }));

    ChildProgram compositor(u"picom"_s,
                            {u"--backend"_s, u"xrender"_s, u"--config"_s, u"/dev/null"_s});
    EXPECT_TRUE(eventually([&] { return bounding() == everything; }));
    EXPECT_TRUE(takesInputIn(island()));
    compositor.kill();
    EXPECT_TRUE(eventually([&] { return bounding() == silhouette(island(), scale()); }));
}

TEST_F(X11PanelWindowTest, GlobalClicksAreThoseOutsideOurWindows)
{
    show();
    openWindow({200, 200, 400, 300});
    std::vector<QPointF> heard;
    auto listening =
        globalEvents.onLeftMouseDown([&](QPointF position) { heard.push_back(position); });
    const auto hears = [&](QPoint native, int button, QPointF position) {
        const auto before = heard.size();
        click(native, button);
        return eventually([&] { return heard.size() > before; }) && heard.back() == position;
    };

    const QPoint origin = nativeCanvas(areaA).topLeft();
    click(origin + island().center());
    EXPECT_TRUE(eventually([&] { return canvas.presses == 1; }));
    click({900, 800}, 3);
    // The canvas is there, the island is not.
    EXPECT_TRUE(hears(origin + QPoint(5, 5), 1, QPointF(origin + QPoint(5, 5)) / scale()));
    EXPECT_TRUE(hears({300, 300}, 1, QPointF(300, 300) / scale()));
    EXPECT_TRUE(hears({1612, 60}, 1, QPointF(1512 + 100 / scale(), 60 / scale())));
    EXPECT_EQ(heard.size(), 3U) << "also of our own window, or of another button";
    EXPECT_EQ(canvas.presses, 1);

    const auto rightHanded = inspector.buttonMap();
    auto leftHanded = rightHanded;
    std::swap(leftHanded.at(0), leftHanded.at(2));
    inspector.setButtonMap(leftHanded);
    EXPECT_TRUE(hears({310, 300}, 3, QPointF(310, 300) / scale()));
    click({300, 300}, 1);
    inspector.setButtonMap(rightHanded);
    EXPECT_TRUE(hears({320, 300}, 1, QPointF(320, 300) / scale()));
    EXPECT_EQ(heard.size(), 5U) << "the right button of a left-handed mouse";
}

TEST(X11ObserverTest, FollowsTheFullScreenWindowWithoutAWindowManager)
{
    const XServer other(u"640x480x24"_s);
    X11Inspector manager;
    X11Observer observer;
    int told = 0;
    auto listening = observer.onFullscreenWindowChanged([&] { ++told; });
    const auto is = [&](std::optional<QRect> place) {
        return eventually([&] { return observer.fullscreenWindow() == place; });
    };
    const QRect half(0, 0, 320, 480);
    const QRect whole(0, 0, 640, 480);

    const auto plain = manager.openWindow(whole);
    const auto video = manager.openWindow(half, true);
    manager.setActiveWindow(video);
    EXPECT_TRUE(is(half));
    manager.moveWindow(video, whole);
    EXPECT_TRUE(is(whole));
    manager.setActiveWindow(plain);
    EXPECT_TRUE(is(std::nullopt));
    manager.setActiveWindow(video);
    EXPECT_TRUE(is(whole));
    manager.closeWindow(video);
    manager.setActiveWindow(XCB_WINDOW_NONE);
    EXPECT_TRUE(is(std::nullopt));
    EXPECT_EQ(told, 5);

    // A window that is gone before it can be looked at.
    manager.setActiveWindow(video);
    manager.setActiveWindow(plain);
    EXPECT_TRUE(is(std::nullopt));
}

} // namespace
} // namespace quillmere
