#include "app/AppEvents.h"
#include "support/IslandFixture.h"

#include <QFile>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using namespace quillmere;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ContentViewTest : public testing::Test, protected IslandFixture
{
protected:
    ContentViewTest() { logger.setEnabled(true); }

    void tap() { fixture.notifications.post(events::islandTapped); }
    void tapByKeyboard()
    {
        fixture.notifications.post(events::islandTapped, {{events::byKeyboard, true}});
    }
    void post(QLatin1StringView event) { fixture.notifications.post(event); }

    void message(double duration, const char *title = "Hello", bool keep = false)
    {
        HUDContent content;
        content.title = QString::fromUtf8(title);
        hud.show(content, keep, duration);
    }

    void file(HUDContent::HUDType type, const char *title)
    {
        HUDContent content;
        content.title = QString::fromUtf8(title);
        content.type = type;
        hud.show(content, true, 1);
    }

    void swipe(double x, double y) { panel.scrollWheel({x, y, true}); }

    std::string shown() const { return presentationName(content.presentation()).toStdString(); }

    /// What was decided since the last call, as "CATEGORY message".
    std::vector<std::string> decisions()
    {
        static const QRegularExpression shape(
            QStringLiteral(R"(^\[.{12}\] \[(AIRPLAY|COLLAPSE)\] \[ContentView:\d+\] (.*)$)"));
        logger.drain();
        QFile log(logger.logFile());
        EXPECT_TRUE(log.open(QIODevice::ReadOnly) && log.seek(logRead_));
        std::vector<std::string> found;
        for (const QString &line : QString::fromUtf8(log.readAll()).split(u'\n')) {
            if (const auto match = shape.match(line); match.hasMatch())
                found.push_back(match.captured(1).toStdString() + ' ' +
                                match.captured(2).toStdString());
        }
        logRead_ = log.pos();
        return found;
    }

private:
    qint64 logRead_ = 0;
};

TEST_F(ContentViewTest, TapOpensTheDashboardForItsDelayAndASecondTapClosesIt)
{
    tap();
    EXPECT_EQ(shown(), "expanded");
    EXPECT_EQ(content.islandSize(), QSizeF(600, 220));
    EXPECT_EQ(haptics.performed, 1);
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE TOGGLE isExpanded=true userExpanded=true"));
    runLoop.advance(3999ms);
    EXPECT_EQ(shown(), "expanded");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");

    settings.hapticFeedback.set(false);
    tap();
    tap();
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_EQ(haptics.performed, 1);
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE TOGGLE isExpanded=true userExpanded=true",
                                         "COLLAPSE TOGGLE isExpanded=false userExpanded=false"));
    runLoop.advance(2s);
    tap();
    runLoop.advance(3s); // when the collapse of the first tap would have come
    EXPECT_EQ(shown(), "expanded");
}

TEST_F(ContentViewTest, PointerHoldsTheIslandOpenAndLeavingStartsTheCountdown)
{
    content.pointerEntered();
    EXPECT_EQ(shown(), "collapsed");
    content.pointerExited();
    EXPECT_THAT(decisions(), IsEmpty());

    settings.expandNotchOnHover.set(true);
    content.pointerEntered();
    EXPECT_EQ(shown(), "expanded");
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE TOGGLE isExpanded=true userExpanded=true"));
    runLoop.advance(63900ms); // armed again each time, and soon again
    EXPECT_EQ(shown(), "expanded");

    settings.autoCollapseDelay.set(2.5);
    content.pointerExited();
    runLoop.advance(200ms);
    content.pointerEntered();
    runLoop.advance(150ms); // the check of the first leave still comes
    content.pointerExited();
    runLoop.advance(350ms + 2499ms);
    EXPECT_EQ(shown(), "expanded");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_THAT(
        decisions(),
        ElementsAre("COLLAPSE HOVER_OUT — will schedule collapse in 0.35s (airPlayOpen=false)",
                    "COLLAPSE HOVER_IN — cancelling collapse",
                    "COLLAPSE HOVER_OUT_DELAYED — scheduling collapse delay=2.5",
                    "COLLAPSE HOVER_OUT — will schedule collapse in 0.35s (airPlayOpen=false)",
                    "COLLAPSE HOVER_OUT_DELAYED — scheduling collapse delay=2.5"));
}

TEST_F(ContentViewTest, OpenPickerHoldsTheIslandUntilAFullDelayAfterItsEnd)
{
    tap();
    decisions();
    post(events::airPlayPickerShown);
    content.pointerExited();
    runLoop.advance(60s);
    EXPECT_EQ(shown(), "expanded");
    post(events::airPlayPickerDismissed);
    runLoop.advance(3999ms);
    EXPECT_EQ(shown(), "expanded");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_THAT(
        decisions(),
        ElementsAre("AIRPLAY PICKER_SHOWN — cancelling collapse",
                    "COLLAPSE HOVER_OUT — will schedule collapse in 0.35s (airPlayOpen=true)",
                    "COLLAPSE HOVER_OUT_DELAYED — popover is open, skipping collapse",
                    "AIRPLAY PICKER_DISMISSED — scheduling collapse"));
}

TEST_F(ContentViewTest, HUDExpandsForItsOwnDuration)
{
    hud.showVolume(100, 1.5);
    EXPECT_EQ(shown(), "hud");
    EXPECT_EQ(haptics.performed, 1);
    runLoop.advance(1s);
    hud.showVolume(100, 1.5); // the same again: longer, but nothing new
    runLoop.advance(1s);
    EXPECT_EQ(shown(), "hud");
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE EXPAND_TEMP"));
    message(5);
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE EXPAND_TEMP"));
    runLoop.advance(4999ms);
    EXPECT_EQ(content.shownHUD()->title, QStringLiteral("Hello"));
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_FALSE(content.shownHUD());

    message(5);
    content.pointerEntered();
    runLoop.advance(30s);
    EXPECT_EQ(content.shownHUD()->title, QStringLiteral("Hello")); // still read
    content.pointerExited();
    runLoop.advance(4350ms);
    EXPECT_EQ(shown(), "collapsed");
    message(5);
    tap();
    EXPECT_EQ(shown(), "collapsed");
    message(5);
    EXPECT_EQ(shown(), "hud");

    runLoop.advance(5s);
    tap();
    decisions();
    runLoop.advance(3s);
    message(5); // the same, but new: the former is over
    EXPECT_EQ(shown(), "hud");
    EXPECT_THAT(decisions(), ElementsAre("COLLAPSE EXPAND_TEMP"));
}

TEST_F(ContentViewTest, LevelsAreShownInsideAnOpenDashboardAndMessagesReplaceIt)
{
    tap();
    decisions();
    hud.showVolume(40, 1.5);
    hud.showBrightness(40, 1.5);
    EXPECT_EQ(shown(), "expanded");
    EXPECT_THAT(decisions(),
                ElementsAre("COLLAPSE SKIPPING volume/brightness expand — user is browsing pages",
                            "COLLAPSE SKIPPING volume/brightness expand — user is browsing pages"));
    runLoop.advance(1s);
    post(events::airPlayPickerShown);
    QObject::connect(&content, &ContentView::presentationChanged, &content, [this] {
        if (content.presentation() != Presentation::Expanded)
            post(events::airPlayPickerDismissed); // as the picker does when its place is gone
    });
    message(2);
    EXPECT_EQ(shown(), "hud");
    runLoop.advance(2s);
    EXPECT_EQ(shown(), "collapsed");
}

TEST_F(ContentViewTest, FileDragOpensTheTrayAndGoesBack)
{
    settings.showFileTray.set(true);
    post(events::dragEntered);
    EXPECT_EQ(shown(), "expanded");
    EXPECT_EQ(content.pages().islandPage(), IslandPage::FileTray);
    runLoop.advance(60s);
    EXPECT_EQ(shown(), "expanded");
    message(3); // "File Added"
    post(events::dragExited);
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Main);
    runLoop.advance(2999ms);
    EXPECT_EQ(shown(), "hud");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");

    post(events::dragEntered);
    post(events::dragExited); // dropped elsewhere
    runLoop.advance(350ms);
    EXPECT_EQ(shown(), "collapsed");
}

TEST_F(ContentViewTest, PagesRecordWhereTheyCameFrom)
{
    IslandPages pages(runLoop);
    pages.step(1);
    EXPECT_EQ(pages.islandPage(), IslandPage::Main); // the only one
    pages.offer({IslandPage::Main, IslandPage::Weather, IslandPage::Timer});
    pages.step(1);
    EXPECT_EQ(pages.islandPage(), IslandPage::Weather);
    EXPECT_EQ(pages.previousIslandPage(), IslandPage::Main);
    EXPECT_EQ(pages.pageSlideDirection(), 1);
    EXPECT_TRUE(pages.isPageTransitioning());
    runLoop.advance(IslandPages::slideDuration);
    EXPECT_FALSE(pages.isPageTransitioning());
    pages.show(IslandPage::Camera); // not offered
    EXPECT_EQ(pages.islandPage(), IslandPage::Weather);
    pages.step(-5);
    EXPECT_EQ(pages.islandPage(), IslandPage::Main);
    EXPECT_EQ(pages.pageSlideDirection(), -1);
    pages.show(IslandPage::Timer);
    pages.offer({IslandPage::Main});
    EXPECT_EQ(pages.islandPage(), IslandPage::Main);
}

TEST_F(ContentViewTest, ATimerHasItsPageUntilNobodyLooksAtIt)
{
    const auto isOffered = [this] { return content.pages().offered().contains(IslandPage::Timer); };
    EXPECT_FALSE(isOffered()) << "both timers are off";
    content.setTimerUnderWay(true); // by a shortcut
    EXPECT_TRUE(isOffered());
    settings.autoCollapseDelay.set(60);
    tap();
    content.pages().show(IslandPage::Timer);
    content.setTimerUnderWay(false);
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Timer) << "it can be started again here";
    content.pages().show(IslandPage::Weather);
    EXPECT_FALSE(isOffered());
    content.setTimerUnderWay(true);
    content.pages().show(IslandPage::Timer);
    content.setTimerUnderWay(false);
    tap();
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Main);
}

TEST_F(ContentViewTest, AHUDThatComesAfterThePointerHasLeftKeepsItsOwnTime)
{
    tap();
    content.pointerEntered();
    content.pointerExited();
    runLoop.advance(200ms);
    message(8);
    runLoop.advance(7999ms);
    EXPECT_EQ(shown(), "hud");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "collapsed");
}

TEST_F(ContentViewTest, OneSwipeIsOneStepHoweverLongItsInertia)
{
    settings.enableCountdownTimer.set(true);
    ASSERT_EQ(content.pages().offered(), (QList{IslandPage::Main, IslandPage::Weather,
                                                IslandPage::System, IslandPage::Timer}));
    const auto flick = [this](double x, double y) {
        for (int i = 0; i < 40; ++i, runLoop.advance(16ms))
            swipe(x, y);
    };
    settings.autoCollapseDelay.set(60);
    tap();
    flick(-20, 1);
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Weather);
    flick(-20, 1); // no pause between: the same gesture
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Weather);
    runLoop.advance(200ms);
    flick(-20, 1);
    EXPECT_EQ(content.pages().islandPage(), IslandPage::System);
    flick(20, 1); // turned round
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Weather);
    settings.naturalMovement.set(true);
    runLoop.advance(200ms);
    flick(20, 1);
    EXPECT_EQ(content.pages().islandPage(), IslandPage::System);

    settings.naturalMovement.set(false);
    flick(0, 5);
    EXPECT_EQ(shown(), "collapsed");
    flick(0, -5);
    EXPECT_EQ(shown(), "expanded");
    flick(0, 5);
    EXPECT_EQ(shown(), "collapsed");
    settings.swipeToToggleOpen.set(false);
    flick(0, -5);
    EXPECT_EQ(shown(), "collapsed");
}

TEST_F(ContentViewTest, ActivitiesLiveInTheWingsAndCanBeCycledAndDismissed)
{
    file(HUDContent::HUDType::Bluetooth, "Headphones");
    file(HUDContent::HUDType::Email, "Mail");
    runLoop.advance(2s);
    EXPECT_FALSE(content.idleActivity()); // off unless wanted
    settings.idleActivityMostRecent.set(true);
    EXPECT_EQ(content.idleActivity()->title, QStringLiteral("Headphones"));
    EXPECT_EQ(content.islandSize(), QSizeF(126 + 88, 32));
    swipe(-20, 0);
    EXPECT_EQ(content.idleActivity()->title, QStringLiteral("Mail"));
    swipe(0, 40); // up and away
    EXPECT_EQ(content.idleActivity()->title, QStringLiteral("Headphones"));

    message(5, "Ada", true);
    runLoop.advance(1s);
    swipe(0, 40);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_FALSE(hud.currentHUD());
    EXPECT_EQ(hud.hudQueue().size(), 1);
    runLoop.advance(1s);

    settings.swipeToToggleOpen.set(false);
    int volumeSteps = 0;
    panel.onCollapsedScroll = [&](double steps) { volumeSteps += static_cast<int>(steps); };
    HUDContent other = hud.hudQueue().first();
    other.title = QStringLiteral("Not kept");
    hud.show(other, false, 5);
    swipe(0, 40);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_EQ(hud.hudQueue().size(), 1); // what another HUD of the kind left behind stays
    settings.swipeToDismissActivity.set(false);
    swipe(0, 40); // the end of that gesture
    EXPECT_EQ(volumeSteps, 0);
    runLoop.advance(1s);
    swipe(0, 40);
    EXPECT_EQ(volumeSteps, 4); // nothing to swipe: the scroll is the volume's
    EXPECT_EQ(hud.hudQueue().size(), 1);
}

TEST_F(ContentViewTest, WingsShowTheTrackAndTheAssistantWhileThereIsSomethingToTell)
{
    const auto play = [this](bool isPlaying, const char *source = "com.spotify.client") {
        hud.updateNowPlaying({.title = QStringLiteral("A Song"),
                              .bundleID = QString::fromUtf8(source),
                              .isPlaying = isPlaying},
                             10, 200);
    };
    const auto width = [this] { return content.islandSize().width(); };
    settings.idleActivityMostRecent.set(true);
    file(HUDContent::HUDType::Email, "Mail");
    runLoop.advance(2s);
    EXPECT_TRUE(content.idleActivity());
    play(true);
    EXPECT_TRUE(wings.content().media);
    EXPECT_FALSE(content.idleActivity()); // what plays goes before
    EXPECT_EQ(width(), 126 + 88);
    int skipped = 0;
    gestures.onSkipMedia = [&](int step) { skipped = step; };
    swipe(-20, 0);
    EXPECT_EQ(skipped, 1);

    wings.setAssistantActive(true);
    EXPECT_EQ(width(), 126 + 88); // they share
    settings.idleActivityType.set(IdleActivityType::None);
    EXPECT_EQ(width(), 126 + 168);
    wings.setAssistantActive(false);
    EXPECT_TRUE(content.idleActivity());
    settings.idleActivityType.set(IdleActivityType::Duo);

    settings.nowPlayingIdleDuration.set(3);
    play(false);
    runLoop.advance(2s);
    play(false); // each poll says so
    runLoop.advance(999ms);
    EXPECT_TRUE(wings.content().media);
    runLoop.advance(1ms);
    EXPECT_FALSE(wings.content().media);
    EXPECT_TRUE(hud.currentNowPlaying());
    play(true);
    EXPECT_TRUE(wings.content().media);

    applications.activate(QStringLiteral("com.spotify.client"));
    EXPECT_TRUE(wings.content().media);
    settings.hideWhileSourceAppActive.set(true);
    EXPECT_FALSE(wings.content().media);
    applications.activate(QStringLiteral("org.kde.dolphin"));
    EXPECT_TRUE(wings.content().media);
    settings.showMediaHUD.set(false);
    EXPECT_FALSE(wings.content().media);
}

// Whatever happens in whatever order: what is open closes once nobody holds it any more, exactly
// when the last countdown says.
TEST_F(ContentViewTest, RandomWalkNeverLeavesTheIslandOpenOrClosesItUnderTheHand)
{
    logger.setEnabled(false);
    settings.showFileTray.set(true);
    std::mt19937 random(20260101);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    bool inside = false;
    bool picker = false;
    bool dragging = false;
    Instant lastEvent = runLoop.now();
    for (int i = 0; i < 100'000; ++i) {
        const bool heldBefore = inside || picker || dragging || content.isTyping();
        const bool openBefore = content.isExpanded();
        const int move = pick(12);
        switch (move) {
        case 0:
        case 1:
            inside = !inside;
            inside ? content.pointerEntered() : content.pointerExited();
            break;
        case 2:
            pick(2) ? tap() : tapByKeyboard();
            break;
        case 3:
            hud.showVolume(pick(101), 1 + pick(3));
            break;
        case 4:
            message(1 + pick(5), pick(2) ? "One" : "Two", pick(2));
            break;
        case 5:
            picker = !picker;
            post(picker ? events::airPlayPickerShown : events::airPlayPickerDismissed);
            break;
        case 6:
            dragging = !dragging;
            post(dragging ? events::dragEntered : events::dragExited);
            break;
        case 7:
            settings.expandNotchOnHover.set(pick(2));
            settings.autoCollapseDelay.set(pick(9) * 0.5);
            break;
        case 8:
            pick(2) ? content.dismissHUD() : content.setTyping(pick(2));
            if (!pick(3))
                content.keyboardLeft();
            break;
        case 9:
            runLoop.advance(std::chrono::seconds(pick(12)));
            break;
        default:
            runLoop.advance(std::chrono::milliseconds(pick(400)));
            break;
        }
        const bool passedTime = move >= 9;
        if (!passedTime)
            lastEvent = runLoop.now();
        if (passedTime && heldBefore) {
            ASSERT_EQ(content.isExpanded(), openBefore) << "closed under the hand, step " << i;
        }
        const bool held = inside || picker || dragging || content.isTyping();
        if (!held && runLoop.now() - lastEvent > 10s) {
            ASSERT_FALSE(content.isExpanded()) << "left open, step " << i;
        }
        ASSERT_LE(content.userExpanded(), content.isExpanded());
        ASSERT_EQ(content.shownHUD().has_value(), content.presentation() == Presentation::HUD);
        ASSERT_EQ(panel.size(), content.islandSize());
        ASSERT_EQ(panelWindow.key, content.isTyping() || content.hasKeyboard());
        ASSERT_FALSE(panelWindow.key && content.presentation() != Presentation::Expanded);
    }
}

TEST_F(ContentViewTest, WhatIsOpenedWithoutAPointerHasTheKeyboardUntilItCloses)
{
    tap();
    EXPECT_FALSE(panelWindow.key);
    tap();
    tapByKeyboard();
    EXPECT_TRUE(panelWindow.key);
    for (int key = 0; key < 10; ++key) {
        runLoop.advance(3s);
        content.keyPressed();
    }
    EXPECT_EQ(shown(), "expanded");
    content.setTyping(true);
    content.setTyping(false);
    EXPECT_TRUE(panelWindow.key) << "it had it before";
    runLoop.advance(5s);
    EXPECT_EQ(shown(), "collapsed");
    EXPECT_FALSE(panelWindow.key);

    tapByKeyboard();
    content.keyboardLeft(); // for another window
    EXPECT_FALSE(panelWindow.key);
    EXPECT_EQ(shown(), "expanded");
    tapByKeyboard();
    EXPECT_FALSE(panelWindow.key) << "closed";
}

} // namespace
