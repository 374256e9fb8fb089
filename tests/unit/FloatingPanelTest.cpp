#include "island/FloatingPanel.h"

#include "app/AppEvents.h"
#include "support/FakeGlobalEvents.h"
#include "support/FakePanelWindow.h"
#include "support/FakeScreens.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

using ::testing::ElementsAre;

class FloatingPanelTest : public ::testing::Test, public SettingsFixture
{
protected:
    FloatingPanelTest()
    {
        auto left = FakeScreens::plain(u"A"_s, QRectF(0, 0, 1000, 800));
        left.isMain = true;
        screens.list = {left, FakeScreens::plain(u"B"_s, QRectF(1000, 0, 2000, 800))};
        taps = notifications.observe(events::islandTapped,
                                     [this](const QVariantMap &) { ++tapCount; });
        scrolls = notifications.observe(events::islandScrolled, [this](const QVariantMap &info) {
            directions.push_back(info.value(events::scrollDirection).toString().toStdString());
        });
    }

    FloatingPanel &open()
    {
        panel.emplace(runLoop, screens, globalEvents, notifications, window, settings);
        return *panel;
    }
    FloatingPanel &show()
    {
        open().displaysDidChange();
        window.takeCalls();
        return *panel;
    }

    ManualRunLoop runLoop;
    FakeScreens screens;
    FakeGlobalEvents globalEvents;
    FakePanelWindow window;
    int tapCount = 0;
    std::vector<std::string> directions;
    Task taps;
    Task scrolls;
    std::optional<FloatingPanel> panel;
};

TEST_F(FloatingPanelTest, SetsItsWindowUpInOrder)
{
    open();
    EXPECT_THAT(window.calls, ElementsAre("create", "level", "traits", "behavior", "sharing",
                                          "content", "drops"));
    EXPECT_EQ(window.style.contentSize, QSizeF(126, 32));
    EXPECT_TRUE(window.style.nonActivating && window.style.fullSizeContent);
    EXPECT_EQ(window.level, 2);
    EXPECT_FALSE(window.traits.opaque || window.traits.hasShadow ||
                 window.traits.movableByBackground || window.traits.hidesOnDeactivate);
    EXPECT_EQ(window.behavior.toInt(), 1 | 2 | 4);
    EXPECT_EQ(window.sharing, SharingType::ReadOnly);
    EXPECT_TRUE(globalEvents.isWatched());
    EXPECT_EQ(panel->alpha(), 0);
    panel.reset();
    EXPECT_FALSE(globalEvents.isWatched());
}

TEST_F(FloatingPanelTest, HidesFromOverviewAndCaptureAtOnceAndFromTheStart)
{
    settings.hideInMissionControl.set(true);
    settings.hideFromScreenCapture.set(true);
    show();
    EXPECT_TRUE(window.behavior.testFlag(CollectionBehavior::Transient));
    EXPECT_EQ(window.sharing, SharingType::None);
    panel->applyHideInMissionControl(false);
    panel->applyHideFromScreenCapture(false);
    EXPECT_EQ(window.behavior.toInt(), 1 | 2 | 4);
    EXPECT_EQ(window.sharing, SharingType::ReadOnly);
}

TEST_F(FloatingPanelTest, KeepsItsSizeAndCentreWhenScreensChange)
{
    show();
    int changes = 0;
    QObject::connect(&*panel, &FloatingPanel::frameChanged, [&] { ++changes; });
    panel->displaysDidChange();
    EXPECT_EQ(changes, 0);
    panel->setSize({300, 44});
    EXPECT_EQ(panel->frame(), QRectF(350, 0, 300, 44));
    EXPECT_EQ(changes, 1);
    defaults.changeFromOutside(u"notchWidth"_s, 180.0);
    defaults.changeFromOutside(u"notchHeight"_s, 36.0);
    EXPECT_EQ(panel->collapsedSize(), QSizeF(180, 36));
    screens.list[0].frame = QRectF(0, 100, 1400, 700);
    panel->displaysDidChange();
    EXPECT_EQ(panel->frame(), QRectF(550, 100, 300, 44));
    EXPECT_EQ(window.frame, panel->frame());

    for (const QSizeF bad :
         {QSizeF(0, 44), QSizeF(-1, -1), QSizeF(qInf(), 44), QSizeF(300, qQNaN())})
        panel->setSize(bad);
    EXPECT_EQ(panel->size(), QSizeF(300, 44));
}

TEST_F(FloatingPanelTest, SurvivesHavingNoScreens)
{
    const auto before = screens.list;
    screens.list = {FakeScreens::notched({}, QRectF(0, 0, 1000, 800), 40, 400, 600)};
    show().setSize({300, 44});
    EXPECT_EQ(panel->collapsedSize(), QSizeF(200, 40));

    screens.list.clear();
    panel->displaysDidChange();
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(panel->collapsedSize(), QSizeF(200, 40));
    panel->setSize({380, 76});
    globalEvents.press(panel->frame().center());
    runLoop.settle();
    EXPECT_EQ(tapCount, 0);

    screens.list = before;
    panel->displaysDidChange();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.frame, QRectF(310, 0, 380, 76));
    EXPECT_EQ(panel->collapsedSize(), QSizeF(126, 32));
}

TEST_F(FloatingPanelTest, TheFirstScreenMakesItOpaqueAndShowsIt)
{
    const auto later = std::exchange(screens.list, {});
    open().setSize({300, 44});
    window.takeCalls();
    panel->displaysDidChange();
    EXPECT_EQ(panel->alpha(), 0);
    screens.list = later;
    panel->displaysDidChange();
    EXPECT_EQ(panel->alpha(), 1);
    EXPECT_EQ(window.frame, QRectF(350, 0, 300, 44));
    EXPECT_THAT(window.calls, ElementsAre("frame", "show"));
}

TEST_F(FloatingPanelTest, FollowsTheDisplaySelectionAtOnce)
{
    screens.pointer = {1500, 10};
    show();
    EXPECT_EQ(window.frame.center().x(), 500);
    EXPECT_EQ(screens.pointerQueries, 0);
    settings.displaySelection.set(DisplaySelection::Active);
    EXPECT_EQ(window.frame.center().x(), 2000);

    // A pointer that wanders off takes the island along at the next change of the screens only.
    screens.pointer = {10, 10};
    panel->setSize({300, 44});
    EXPECT_EQ(window.frame.center().x(), 2000);
    panel->displaysDidChange();
    EXPECT_EQ(window.frame.center().x(), 500);
}

TEST_F(FloatingPanelTest, ClickInsideTheFrameIsATapOnTheMainQueue)
{
    show().setSize({300, 44});
    const QRectF frame = panel->frame();
    for (const QPointF outside : {QPointF(frame.left() - 0.1, 5), QPointF(frame.right(), 5),
                                  QPointF(500, -0.1), QPointF(500, 44)})
        globalEvents.press(outside);
    runLoop.settle();
    EXPECT_EQ(tapCount, 0);

    globalEvents.press(frame.topLeft());
    EXPECT_EQ(tapCount, 0) << "posted, not called";
    runLoop.settle();
    EXPECT_EQ(tapCount, 1);

    panel->mouseDown();
    EXPECT_EQ(tapCount, 2);

    globalEvents.press(frame.center());
    panel.reset();
    runLoop.settle();
    EXPECT_EQ(tapCount, 2) << "a tap of a panel that is gone";
}

TEST_F(FloatingPanelTest, HorizontalScrollsPassTheThreshold)
{
    struct Case {
        ScrollEvent event;
        const char *direction;
    };
    const Case cases[] = {
        {{6, 0, false}, "left"},       {{-6, 0, false}, "right"},    {{6, 0, true}, nullptr},
        {{5, 0, false}, nullptr},      {{-5, 0, false}, nullptr},    {{15, 0, true}, nullptr},
        {{15.01, 0, true}, "left"},    {{-15.01, 0, true}, "right"}, {{0, 60, true}, nullptr},
        {{qQNaN(), 0, true}, nullptr},
    };
    show();
    for (const auto &c : cases) {
        directions.clear();
        panel->scrollWheel(c.event);
        EXPECT_EQ(directions,
                  c.direction ? std::vector<std::string>{c.direction} : std::vector<std::string>{})
            << c.event.deltaX << (c.event.precise ? " precise" : " wheel");
    }
}

TEST_F(FloatingPanelTest, CollapsedScrollCountsNotches)
{
    std::vector<double> steps;
    show().onCollapsedScroll = [&](double count) { steps.push_back(count); };

    panel->scrollWheel({0, 10, false});
    panel->scrollWheel({0, -20, false});
    panel->scrollWheel({0, 2.5, false});
    EXPECT_THAT(steps, ElementsAre(1, -2, 0.25));

    steps.clear();
    for (int i = 0; i < 7; ++i) // 28 points: two whole steps
        panel->scrollWheel({1, 4, true});
    panel->scrollWheel({0, -9, true}); // turning back starts from nothing
    panel->scrollWheel({0, -31, true});
    EXPECT_THAT(steps, ElementsAre(1, 1, -4));

    steps.clear();
    panel->scrollWheel({10, 10, false});
    panel->scrollWheel({-12, 10, false});
    panel->scrollWheel({0, qInf(), true});
    panel->setSize({300, 50.1});
    panel->scrollWheel({0, 10, false});
    EXPECT_THAT(steps, ElementsAre());
    panel->setSize({300, 50});
    panel->scrollWheel({0, 10, false});
    EXPECT_THAT(steps, ElementsAre(1));

    steps.clear();
    screens.list = {FakeScreens::notched(QStringLiteral("N"), {0, 0, 1512, 982}, 32, 663, 849)};
    panel->displaysDidChange();
    panel->setSize({300, 82}); // the volume, below a housing
    panel->scrollWheel({0, 10, false});
    panel->setSize({300, 82.1});
    panel->scrollWheel({0, 10, false});
    EXPECT_THAT(steps, ElementsAre(1));
}

TEST_F(FloatingPanelTest, FullscreenIsAnsweredLive)
{
    struct Case {
        bool hide, disable, covered, idle;
        bool visible, suppresses;
    };
    const Case cases[] = {
        {true, false, false, true, true, false}, {true, false, true, true, false, false},
        {true, false, true, false, true, false}, {true, true, true, false, false, true},
        {true, true, false, false, true, false}, {false, false, true, true, true, false},
        {false, true, true, true, true, true},
    };
    show();
    for (const auto &c : cases) {
        settings.hideInFullscreen.set(c.hide);
        settings.disableInFullscreen.set(c.disable);
        panel->setIdle(c.idle);
        window.setCovered(c.covered);
        window.takeCalls();
        panel->orderFront();
        EXPECT_EQ(window.visible, c.visible) << c.hide << c.disable << c.covered << c.idle;
        EXPECT_EQ(window.takeCalls().size(), c.visible ? 1U : 0U) << "only a visible one comes up";
        EXPECT_EQ(panel->suppressesHUDs(), c.suppresses)
            << c.hide << c.disable << c.covered << c.idle;
    }
    window.setCovered(true);
    panel->setIdle(true);
    settings.hideInFullscreen.set(true);
    panel->setKey(true);
    EXPECT_FALSE(window.visible || window.key) << "what is typed is the film's";
    settings.hideInFullscreen.set(false);
    EXPECT_TRUE(window.visible && window.key);
    settings.hideInFullscreen.set(true);
    EXPECT_FALSE(window.visible || window.key);
}

} // namespace
} // namespace quillmere
