#include "island/NotchGeometry.h"
#include "support/FakeScreens.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

const QRectF laptopFrame(0, 0, 1512, 982);

ScreenInfo laptop(double inset, double gapLeft, double gapRight)
{
    return FakeScreens::notched(u"eDP-1"_s, laptopFrame, inset, gapLeft, gapRight);
}

TEST(NotchSize, FollowsTheHousingWithinItsMinimumAndNeedsInsetAndBothStrips)
{
    EXPECT_EQ(notchSize(laptop(32, 656, 856)), QSizeF(200, 32));
    EXPECT_EQ(notchSize(laptop(32, 700, 800)), QSizeF(118, 32));
    EXPECT_EQ(notchSize(laptop(20, 656, 856)), QSizeF(200, 28));
    for (const double inset : {0.0, -1.0})
        EXPECT_FALSE(notchSize(laptop(inset, 656, 856)));
    for (auto strip : {&ScreenInfo::auxiliaryTopLeft, &ScreenInfo::auxiliaryTopRight}) {
        auto half = laptop(32, 656, 856);
        (half.*strip).reset();
        EXPECT_FALSE(notchSize(half));
    }
}

TEST(PanelOrigin, HangsFromTheTopCentredOnTheHousingOrTheFrame)
{
    const QSizeF size(300, 44);
    const QRectF second(1512, -98, 1920, 1080);
    EXPECT_EQ(panelOrigin(FakeScreens::plain({}, second), size), QPointF(1512 + 960 - 150, -98));
    // The housing need not be in the middle.
    EXPECT_EQ(panelOrigin(laptop(32, 600, 800), size), QPointF(700 - 150, 0));
    auto moved = FakeScreens::notched({}, second, 32, 1000, 1101);
    EXPECT_EQ(panelOrigin(moved, size), QPointF(1512 + 1050.5 - 150, -98));
    // An inset alone says nothing about where the housing is.
    moved.auxiliaryTopLeft.reset();
    EXPECT_EQ(panelOrigin(moved, size), QPointF(1512 + 960 - 150, -98));
}

TEST(TargetScreen, FindsTheChosenOneOrTakesTheFirst)
{
    auto external = FakeScreens::plain(u"HDMI-1"_s, QRectF(1512, 0, 1920, 1080));
    auto builtIn = FakeScreens::plain(u"eDP-1"_s, laptopFrame);
    auto main = FakeScreens::plain(u"DP-1"_s, QRectF(0, -1080, 1920, 1080));
    builtIn.isBuiltIn = true;
    main.isMain = true;
    const QList screens{external, builtIn, main};

    struct Case {
        DisplaySelection selection;
        QPointF pointer;
        qsizetype expected;
    };
    const Case cases[] = {
        {DisplaySelection::BuiltIn, {2000, 5}, 1},
        {DisplaySelection::Main, {2000, 5}, 2},
        {DisplaySelection::Active, {2000, 5}, 0},
        {DisplaySelection::Active, {1511.9, 0}, 1},
        {DisplaySelection::Active, {1512, 0}, 0}, // the seam belongs to the right-hand screen
        {DisplaySelection::Active, {0, -0.1}, 2},
        {DisplaySelection::Active, {-50, 50}, 0}, // on no screen
    };
    for (const auto &c : cases)
        EXPECT_EQ(targetScreen(c.selection, screens, c.pointer), c.expected)
            << static_cast<int>(c.selection) << " " << c.pointer.x() << "," << c.pointer.y();

    EXPECT_EQ(targetScreen(DisplaySelection::BuiltIn, {external, main}, {}), 0);
    EXPECT_EQ(targetScreen(DisplaySelection::Main, {external, builtIn}, {}), 0);
    for (const auto selection : allCases<DisplaySelection>())
        EXPECT_EQ(targetScreen(selection, {}, {5, 5}), std::nullopt);
}

TEST(CollapsedSize, TakesTheNotchThenTheUsersNumbersThenTheFallback)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        std::optional<QSizeF> notch;
        double width;
        double height;
        QSizeF expected;
    };
    const Case cases[] = {
        {QSizeF(200, 32), 0, 0, {200, 32}},
        {QSizeF(200, 32), 150, 40, {200, 32}},
        {{}, 0, 0, {126, 32}},
        {{}, 150, 0, {150, 32}},
        {{}, 0, 40, {126, 40}},
        {{}, 150.5, 40.5, {150.5, 40.5}},
        {{}, -150, -40, {126, 32}},
        {{}, 1, 1, {60, 20}},
        {{}, 1e9, 1e9, {600, 100}},
        {{}, infinity, nan, {126, 32}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(collapsedSize(c.notch, c.width, c.height), c.expected)
            << c.width << " x " << c.height;
}

} // namespace
} // namespace quillmere
