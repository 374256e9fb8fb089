#include "claude/HookEvent.h"
#include "support/IslandFixture.h"
#include "support/LogCapture.h"
#include "views/IslandWindow.h"
#include "views/PulsingDot.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class AssistantViewsTest : public testing::Test, protected IslandFixture
{
protected:
    static void SetUpTestSuite()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        static int argc = 1;
        static char name[] = "AssistantViewsTest";
        static char *argv[] = {name, nullptr};
        application = new QGuiApplication(argc, argv);
    }
    static void TearDownTestSuite() { delete application; }

    void report(const QString &event, const QString &cwd = u"/home/u/demo"_s,
                const std::optional<QString> &tool = {}, const std::optional<QString> &prompt = {})
    {
        claudeCode.handle({.cwd = cwd, .event = event, .tool = tool, .userPrompt = prompt});
    }

    void showWindow()
    {
        window.setIsland(island, dashboard);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
    }

    QQuickItem *scene() const { return window.contentItem()->childItems().constFirst(); }

    template <class Item>
    QList<Item *> shown() const
    {
        auto items = scene()->findChildren<Item *>();
        items.removeIf([](const auto *item) { return !item->isVisible(); });
        return items;
    }

    AssistantModel &assistant = *dashboard.assistant();
    static inline QGuiApplication *application = nullptr;
    IslandWindow window;
};

TEST_F(AssistantViewsTest, TextsFromOutsideAreFitToBeShown)
{
    const QString bomb = u"a\u202eb\u2066c\td\r\n\x1b[31m  \u05d0\u200f"_s;
    report(u"PreToolUse"_s, u"/x/"_s + bomb, bomb, bomb.repeated(1000));
    for (const QString &text : {assistant.project(), assistant.tool(), assistant.prompt()})
        EXPECT_TRUE(text.startsWith(u"abc d [31m \u05d0"_s)) << text.toStdString();
    EXPECT_LE(assistant.prompt().size(), 200);
    EXPECT_FALSE(assistant.accessibleText().contains(u'\u202e'));

    report(u"UserPromptSubmit"_s, u""_s, {}, u"don't <b>\U0001f469\u200d\U0001f4bb</b>"_s);
    EXPECT_EQ(assistant.project(), u"Claude Code"_s);
    EXPECT_EQ(assistant.prompt(), u"don't <b>\U0001f469\u200d\U0001f4bb</b>"_s);
    report(u"PreToolUse"_s, u"/"_s, u"Edit"_s);
    EXPECT_EQ(assistant.accessibleText(), u"Claude Code: Working..., /, Editing file, "
                                          "don't <b>\U0001f469\u200d\U0001f4bb</b>, now"_s);
}

TEST_F(AssistantViewsTest, EveryStatusHasItsLabelAndWhatFadesOutKeepsIt)
{
    const struct {
        QString event;
        QString label;
        QColor color;
    } cases[] = {
        {u"PreToolUse"_s, u"Working..."_s, QColor::fromRgbF(0.851F, 0.471F, 0.337F)},
        {u"PermissionRequest"_s, u"Waiting"_s, QColor(0x64, 0xb5, 0xff)},
        {u"PreCompact"_s, u"Compacting"_s, QColor(0xff, 0xd5, 0x4a)},
        {u"Stop"_s, u"Idle"_s, QColor::fromRgbF(1, 1, 1, 0.4F)},
    };
    for (const auto &each : cases) {
        report(each.event, u"/demo"_s, u"Edit"_s);
        EXPECT_EQ(assistant.label(), each.label);
        EXPECT_EQ(assistant.color(), each.color);
    }
    EXPECT_EQ(assistant.badgeLabel(), u"Compacting"_s);
    EXPECT_EQ(assistant.tool(), QString()); // nothing runs
    claudeCode.stop();
    EXPECT_FALSE(assistant.hasSession());
    EXPECT_EQ(assistant.project(), u"demo"_s);
}

TEST_F(AssistantViewsTest, TimeSinceFollowsTheClockOnlyWhileItIsOnShow)
{
    settings.autoCollapseDelay.set(10000);
    report(u"Stop"_s);
    QSignalSpy stepped(&assistant, &AssistantModel::sinceChanged);
    runLoop.advance(90s);
    EXPECT_TRUE(stepped.isEmpty());
    content.toggle();
    EXPECT_EQ(assistant.since(), u"1 min ago"_s);
    runLoop.advance(31s);
    EXPECT_EQ(assistant.since(), u"2 min ago"_s);
    EXPECT_EQ(stepped.size(), 2);
    report(u"Stop"_s);
    EXPECT_EQ(assistant.since(), u"now"_s);
    content.toggle();
    runLoop.advance(59min);
    EXPECT_EQ(stepped.size(), 3);
    content.toggle();
    EXPECT_EQ(assistant.since(), u"59 min ago"_s);
    EXPECT_TRUE(assistant.hasSession());
    runLoop.advance(1min);
    EXPECT_FALSE(assistant.hasSession());
    report(u"Stop"_s);
    EXPECT_TRUE(assistant.hasSession());
}

TEST_F(AssistantViewsTest, DotWakesNobodyUnlessItPulsesAndIsSeen)
{
    LogCapture log;
    showWindow();
    const auto moving = [this] {
        return std::ranges::count_if(scene()->findChildren<PulsingDot *>(),
                                     [](const auto *dot) { return dot->isMoving(); });
    };
    EXPECT_EQ(moving(), 0);
    report(u"PreToolUse"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return moving() == 1; }));
    appearance.reduced = true;
    appearance.changed();
    EXPECT_EQ(moving(), 0);
    appearance.reduced = false;
    appearance.changed();
    EXPECT_EQ(moving(), 1);
    content.toggle(); // the card has one of its own, the pill's fades out
    EXPECT_TRUE(QTest::qWaitFor([&] { return moving() == 1 && shown<PulsingDot>().size() == 1; }));
    report(u"Stop"_s);
    EXPECT_EQ(moving(), 0);
    report(u"PreToolUse"_s);
    EXPECT_EQ(moving(), 1);
    window.hide();
    EXPECT_EQ(moving(), 0);
    window.clearIsland();
    EXPECT_EQ(log.take(), QStringList());
}

TEST_F(AssistantViewsTest, WordsStayInThePillInEitherDirectionAndAroundAHousing)
{
    report(u"PreCompact"_s, u"/a project with a name that does not end"_s);
    showWindow();
    for (const bool housing : {false, true}) {
        const QRectF frame(0, 0, 1512, 900);
        screens.list = {housing ? FakeScreens::notched(u"S"_s, frame, 32, 663, 849)
                                : FakeScreens::plain(u"S"_s, frame)};
        panel.displaysDidChange();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            const auto inPill = [&] {
                const double free = (window.width() - island.targetWidth()) / 2;
                QList<QQuickItem *> words;
                for (auto *item : shown<QQuickItem>())
                    if (item->inherits("QQuickText") &&
                        !item->property("text").toString().isEmpty())
                        words.append(item);
                return words.size() == (housing ? 1 : 2) &&
                       std::ranges::all_of(words, [&](const auto *word) {
                           const QRectF place = word->mapRectToScene(word->boundingRect());
                           return place.left() >= free && place.right() <= window.width() - free;
                       });
            };
            EXPECT_TRUE(QTest::qWaitFor(inPill)) << housing << direction;
        }
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    window.clearIsland();
}

} // namespace
