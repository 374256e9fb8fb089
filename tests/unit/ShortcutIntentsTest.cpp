#include "platform/NotificationCenter.h"
#include "support/FakeAlerts.h"
#include "support/FakeShortcutPublisher.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"
#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/QuillmereShortcuts.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

struct ShortcutIntentsTest : testing::Test {
    ShortcutIntentsTest()
    {
        shortcuts.onDialog = [this](const HUDContent &hud) { dialogs << hud.title; };
    }

    QString perform(const char *intent, const QVariantMap &parameters = {})
    {
        const auto dialog = desktop.requests.perform(QLatin1StringView(intent), parameters);
        return dialog ? *dialog : u"error: "_s + dialog.error();
    }

    /// "id title | subtitle" of each.
    QStringList search(const QString &query)
    {
        QStringList found;
        for (const auto &match : desktop.requests.search(query))
            found << match.id + u' ' + match.title + u" | " + match.subtitle;
        return found;
    }

    ManualRunLoop runLoop;
    FakeUserNotifications notifications;
    FakeSystemSound sound;
    PomodoroManager pomodoro{runLoop, notifications};
    CountdownTimerManager countdown{runLoop, notifications, sound};
    NotificationCenter notificationCenter;
    FakeShortcutPublisher desktop;
    QuillmereShortcuts shortcuts{pomodoro, countdown, notificationCenter, desktop};
    QStringList dialogs;
};

TEST_F(ShortcutIntentsTest, SaysWhatIsWrongAndChangesNothing)
{
    const QString range = u"error: minutes must be a whole number from 1 to 1440"_s;
    const std::pair<QVariant, QString> values[] = {
        {0, range},
        {1441, range},
        {-1, range},
        {2.5, range},
        {u"10"_s, range},
        {QVariant(), range},
        {QVariant::fromValue(~0ULL), range},
        {1440U, u"Countdown started — 1440 minutes to go."_s},
        {qint64{7}, u"Countdown started — 7 minutes to go."_s},
    };
    for (const auto &[value, answer] : values) {
        countdown.reset();
        EXPECT_EQ(perform("StartCountdownTimerIntent", {{u"minutes"_s, value}}), answer);
        EXPECT_EQ(countdown.isRunning(), !answer.startsWith(u"error"));
    }
    EXPECT_EQ(perform("StartCountdownTimerIntent", {{u"hours"_s, 1}}),
              u"error: StartCountdownTimerIntent has no parameter \"hours\""_s);
    EXPECT_EQ(perform("StopPomodoroIntent", {{u"minutes"_s, 1}}),
              u"error: StopPomodoroIntent has no parameter \"minutes\""_s);
    pomodoro.workDuration = 119;
    EXPECT_EQ(perform("StartPomodoroIntent"), u"Pomodoro started — 1 minute of focus."_s);
    EXPECT_EQ(perform("EraseDisk"), u"error: there is no intent \"EraseDisk\""_s);
    EXPECT_EQ(shortcuts.activateAction(u"erase-disk"_s, {}).error(),
              u"there is no action \"erase-disk\""_s);
}

TEST_F(ShortcutIntentsTest, SearchFindsPhrasesAndACountdownOfAnyLength)
{
    const QString startPomodoro =
        u"start-pomodoro Start Pomodoro | Start a Pomodoro in Quillmere"_s;
    const QString stopPomodoro = u"stop-pomodoro Stop Pomodoro | Stop the Pomodoro in Quillmere"_s;
    const QString startTimer = u"start-countdown Start Timer | Start a 5-minute countdown"_s;
    const QString stopTimer = u"stop-countdown Stop Timer | Stop the timer in Quillmere"_s;
    const QString toggle = u"toggle-island Toggle Island | Toggle the island in Quillmere"_s;
    const QString ten = u"start-countdown:10 Start a 10-minute countdown | Start Timer"_s;
    const std::pair<const char *, QStringList> queries[] = {
        {"Start a Pomodoro in Quillmere", {startPomodoro}},
        {"start a focus session in quillmere", {startPomodoro}},
        {"Stop the Pomodoro in Quillmere", {stopPomodoro}},
        {"END THE QUILLMERE FOCUS SESSION", {stopPomodoro}},
        {"Start a timer in Quillmere", {startTimer}},
        {"start a countdown in quillmere", {startTimer}},
        {"stop the timer in quillmere", {stopTimer}},
        {"cancel the quillmere timer", {stopTimer}},
        {"toggle the island in quillmere", {toggle}},
        {"show the quillmere island", {toggle}},
        {"pom", {startPomodoro, stopPomodoro}},
        {"stop timer", {stopTimer}},
        {"timer", {startTimer, stopTimer}},
        {"timer 10", {ten}},
        {"10 min timer", {ten}},
        {"10-minute countdown", {ten}},
        {"countdown 10min", {ten}},
        {"Start a timer in Quillmere 10 minutes", {ten}},
        {"timer 0", {}},
        {"timer 1441", {}},
        {"timer 10 10", {}},
        {"stop timer 10", {}},
        {"10", {}},
        {"", {}},
        {"ti", {}},
        {"the", {}},
        {"start a firefox", {}},
        {"skip pomodoro phase", {}},
    };
    for (const auto &[query, found] : queries)
        EXPECT_EQ(search(QLatin1StringView(query)), found) << query;
    EXPECT_EQ(search(u"quillmere"_s).size(), 5);
    EXPECT_EQ(search(u"start "_s.repeated(100000)).size(), 2);
    EXPECT_EQ(desktop.requests.search(u"timer"_s).first().relevance,
              desktop.requests.search(u"timer"_s).last().relevance);
    EXPECT_GT(desktop.requests.search(u"Start Timer"_s).first().relevance,
              desktop.requests.search(u"start tim"_s).first().relevance);
}

TEST_F(ShortcutIntentsTest, WhatWasFoundRuns)
{
    LogCapture log;
    for (const char *id : {"start-countdown:10", "stop-countdown", "toggle-island",
                           "start-countdown:0", "start-countdown:", "stop-countdown:5", "x"})
        desktop.requests.run(QLatin1StringView(id));
    EXPECT_EQ(dialogs,
              (QStringList{u"Countdown started — 10 minutes to go."_s, u"Timer cancelled."_s}));
    EXPECT_EQ(log.take().filter(u"[Shortcuts] There is no shortcut"_s).size(), 4);
    const auto described = desktop.requests.describe({u"x"_s, u"start-countdown:7"_s});
    ASSERT_EQ(described.size(), 1);
    EXPECT_EQ(described.first().title, u"Start a 7-minute countdown"_s);
    EXPECT_EQ(desktop.requests.list().size(), 6);
}

} // namespace
} // namespace quillmere
