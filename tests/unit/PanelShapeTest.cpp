#include "platform/linux/window/PanelShape.h"
#include "platform/linux/window/CameraHousing.h"
#include "platform/linux/window/QtScreens.h"
#include "platform/linux/window/ScreenMapping.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

TEST(Canvas, StaysPutWhileTheIslandGrows)
{
    for (const double centre : {756.0, 756.5, 1512 + 960.0, -0.5}) {
        QRect first;
        for (int step = 0; step < 800; ++step) {
            const double width = 126 + step * 0.37;
            const QRect canvas = canvasFor(QRectF(centre - width / 2, 40, width, 32));
            if (first.isNull())
                first = canvas;
            ASSERT_EQ(canvas, first) << width;
        }
        for (const double noise : {-1e-9, 1e-9})
            EXPECT_EQ(canvasFor(QRectF(centre - 63 + noise, 40 + noise, 126, 32)), first);
        EXPECT_EQ(first.size(), canvasSize);
        EXPECT_EQ(first.top(), 40);
        EXPECT_LE(std::abs(first.left() + canvasSize.width() / 2.0 - centre), 0.5);
    }
}

TEST(DevicePixels, CoverTheIsland)
{
    EXPECT_EQ(devicePixels({693, 0, 126, 32}, {396, 0}, 1), QRect(297, 0, 126, 32));
    EXPECT_EQ(devicePixels({693, 0, 126, 32}, {396, 0}, 2), QRect(594, 0, 252, 64));
    EXPECT_EQ(devicePixels({692.5, 40, 127, 32}, {396, 40}, 1), QRect(296, 0, 128, 32));
    EXPECT_EQ(devicePixels({693, 0, 126, 33}, {396, 0}, 1.25), QRect(371, 0, 158, 42));
}

TEST(Silhouette, HasEarsAboveAndRoundCornersBelow)
{
    for (const double scale : {1.0, 2.0}) {
        const QRect island(100, 0, int(300 * scale), int(76 * scale));
        const auto outline = silhouette(island, scale);
        const auto bounds = outline.boundingRect();
        EXPECT_GE(bounds.left(), island.left() - 6 * scale);
        EXPECT_LE(bounds.left(), island.left() - 4 * scale);
        EXPECT_EQ(bounds.top(), 0);
        EXPECT_EQ(bounds.bottom(), island.bottom());
        EXPECT_EQ(bounds.left() - island.left(), island.right() - bounds.right());
        EXPECT_TRUE(outline.contains(island.center()));
        EXPECT_FALSE(outline.contains(island.bottomLeft()));
        EXPECT_FALSE(outline.contains(island.bottomRight()));
        const int straight = int(22 * scale);
        EXPECT_TRUE(outline.contains(island.bottomLeft() + QPoint(straight, 0)));
        EXPECT_TRUE(outline.contains(island.bottomLeft() - QPoint(0, straight)));
    }
    EXPECT_TRUE(silhouette({}, 1).isEmpty());
}

TEST(ScreenMapping, SharesCornersAndScalesFromThere)
{
    const ScreenMapping second{{3024, -100, 960, 540}, 2};
    EXPECT_EQ(second.native(), QRect(3024, -100, 1920, 1080));
    EXPECT_EQ(second.toLogical({3024, -100}), QPointF(3024, -100));
    EXPECT_EQ(second.toLogical({3024 + 201, -100 + 60}), QPointF(3124.5, -70));
}

TEST(ScreenMapping, TheLowerOfTwoScreensCarriesWhatHangsBetweenThem)
{
    const QRect upper(0, 0, 1920, 1080);
    const QRect lower(0, 1080, 1440, 900);
    const QRect right(1920, 0, 800, 600);
    const auto carriers = [&](const QRectF &frame) {
        return QList<bool>{carries(upper, frame), carries(lower, frame), carries(right, frame)};
    };
    EXPECT_EQ(carriers({620, 1080, 200, 32}), (QList<bool>{false, true, false}));
    EXPECT_EQ(carriers({860, 0, 200, 32}), (QList<bool>{true, false, false}));
    EXPECT_EQ(carriers({1820, 0, 200, 32}), (QList<bool>{false, false, true}));
    EXPECT_EQ(carriers({860.25, -0.5, 200, 32}), (QList<bool>{false, false, false}));
}

TEST(QtScreensTest, InternalConnectors)
{
    for (const char *name : {"eDP", "eDP-1", "eDP-1-1", "EDP-2", "LVDS-1", "DSI-1"})
        EXPECT_TRUE(isInternalConnector(QString::fromLatin1(name))) << name;
    for (const char *name : {"", "DP-1", "HDMI-A-1", "VGA-1", "Virtual-1", "XWAYLAND0"})
        EXPECT_FALSE(isInternalConnector(QString::fromLatin1(name))) << name;
}

TEST(CameraHousing, MachinesAreToldApartByName)
{
    QTemporaryDir sysfs;
    const auto write = [&](const QString &path, const QByteArray &content) {
        QDir().mkpath(sysfs.path() + path.left(path.lastIndexOf(u'/')));
        QFile file(sysfs.path() + path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    };
    EXPECT_TRUE(machineNames(sysfs.path()).isEmpty());
    write(u"/class/dmi/id/product_name"_s, "Some Laptop 14\n");
    write(u"/firmware/devicetree/base/compatible"_s, QByteArray("vendor,board\0vendor,soc\0", 24));
    EXPECT_EQ(machineNames(sysfs.path()),
              (QStringList{u"vendor,board"_s, u"vendor,soc"_s, u"Some Laptop 14"_s}));
}

TEST(CameraHousing, BelongsToOneModeOfOneMachine)
{
    const CameraHousing housings[] = {
        {QLatin1StringView("vendor,board"), {3000, 2000}, 64, 1300, 1700}};
    const QStringList names{u"vendor,board"_s};
    EXPECT_TRUE(findCameraHousing(housings, names, {3000, 2000}));
    EXPECT_FALSE(findCameraHousing(housings, names, {3000, 1900}));
    EXPECT_FALSE(findCameraHousing(housings, {}, {3000, 2000}));

    ScreenInfo screen;
    screen.frame = QRectF(100, 50, 1500, 1000);
    applyCameraHousing(screen, housings[0], 2);
    EXPECT_EQ(screen.topInset, 32);
    EXPECT_EQ(screen.auxiliaryTopLeft, QRectF(100, 50, 650, 32));
    EXPECT_EQ(screen.auxiliaryTopRight, QRectF(950, 50, 650, 32));
}

} // namespace
} // namespace quillmere
