#include "tools/Timers.h"
#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "support/FakeAlerts.h"
#include "support/FakeShortcutPublisher.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"
#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/TimerFields.h"
#include "tools/TimerTexts.h"
#include "tools/WingTimer.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include <limits>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;
using State = PomodoroState;

struct TimersTest : testing::Test, SettingsFixture {
    /// What was notified since the last look.
    QStringList notified()
    {
        QStringList texts;
        for (const auto &shown : std::exchange(alerts.shown, {}))
            texts << shown.title + u" | " + shown.body + (shown.playsSound ? u"" : u" silent");
        return texts;
    }

    ManualRunLoop runLoop;
    FakeUserNotifications alerts;
    FakeSystemSound sound;
    PomodoroManager pomodoro{runLoop, alerts};
    CountdownTimerManager countdown{runLoop, alerts, sound};
};

TEST_F(TimersTest, EveryFourthSessionEarnsALongBreakAndNoneStartsByItself)
{
    QStringList identifiers;
    std::vector<std::pair<State, int>> ended;
    pomodoro.onSessionComplete = [&](State state) {
        ended.emplace_back(state, pomodoro.sessionsCompleted());
    };
    for (int session = 1; session <= 9; ++session) {
        const bool isLong = session % 4 == 0;
        pomodoro.startWork();
        EXPECT_EQ(pomodoro.timeRemaining(), 1500);
        runLoop.advance(1500s - 1ns);
        ASSERT_EQ(pomodoro.state(), State::Working) << session;
        runLoop.advance(1ns);
        ASSERT_EQ(pomodoro.state(), isLong ? State::LongBreak : State::ShortBreak) << session;
        EXPECT_EQ(pomodoro.timeRemaining(), isLong ? 900 : 300);
        identifiers << alerts.shown.at(0).identifier;
        EXPECT_THAT(
            notified(),
            ElementsAre(
                u"Focus session complete | Time for a break! Session %1 done."_s.arg(session)));
        runLoop.advance(isLong ? 900s : 300s);
        EXPECT_EQ(pomodoro.state(), State::Idle);
        EXPECT_EQ(pomodoro.timeRemaining(), 0);
        EXPECT_THAT(notified(), ElementsAre(u"Break's over | Ready to focus again?"_s));
        EXPECT_EQ(ended.at(ended.size() - 2), std::pair(State::Working, session));
        EXPECT_EQ(ended.back().first, isLong ? State::LongBreak : State::ShortBreak);
    }
    runLoop.advance(24h);
    EXPECT_EQ(pomodoro.sessionsCompleted(), 9);
    EXPECT_EQ(identifiers.removeDuplicates(), 0) << "one takes the place of another";
    EXPECT_EQ(identifiers.filter(u"pomodoro-"_s).size(), 9);
}

TEST_F(TimersTest, PomodoroCountsTicksNotTheClock)
{
    settings.pomodoroWorkMinutes.set(0.04);
    pomodoro.copyDurations(settings);
    EXPECT_EQ(pomodoro.shortBreakDuration, 300);
    std::vector<double> ticks;
    pomodoro.onTimerTick = [&](State, double left) { ticks.push_back(left); };
    pomodoro.startWork();
    runLoop.stall(1h);
    EXPECT_EQ(ticks.size(), 1U) << "one tick, however long the machine slept";
    runLoop.advance(900ms);
    pomodoro.startWork(); // again from the full length, and from the full second
    runLoop.advance(2s);
    EXPECT_EQ(pomodoro.state(), State::Working);
    runLoop.advance(1s);
    EXPECT_EQ(pomodoro.state(), State::ShortBreak);
    ASSERT_EQ(ticks.size(), 4U);
    EXPECT_NEAR(ticks.at(2), 0.4, 1e-9);
    EXPECT_EQ(ticks.at(3), 0);

    pomodoro.stop();
    EXPECT_EQ(pomodoro.state(), State::Idle);
    EXPECT_EQ(pomodoro.sessionsCompleted(), 1);
    runLoop.advance(1h);
    EXPECT_EQ(ticks.size(), 4U);

    pomodoro.onTimerTick = [this](State, double) { pomodoro.stop(); };
    pomodoro.startWork();
    runLoop.advance(1min);
    EXPECT_EQ(pomodoro.sessionsCompleted(), 1) << "stopped from within its tick";
}

TEST_F(TimersTest, CountdownEndsOnTimeWhateverTheClocksDo)
{
    const struct {
        const char *what;
        Duration before;
        Duration wallClock{}; ///< set by that
        Duration suspend{};
        Duration pause{};
    } cases[] = {{"nothing", 4min},
                 {"clock set back", 4min, -1h},
                 {"suspend", 1min, {}, 7min},
                 {"pause", 12340ms, {}, {}, 1h}};
    int finished = 0;
    QObject::connect(&countdown, &CountdownTimerManager::finished, [&] { ++finished; });
    for (const auto &[what, before, wallClock, suspend, pause] : cases) {
        countdown.setPreset(10);
        countdown.start();
        runLoop.advance(before);
        runLoop.setWallClock(runLoop.wallClock() + wallClock);
        runLoop.stall(suspend);
        if (pause > Duration::zero()) {
            countdown.pause();
            EXPECT_DOUBLE_EQ(countdown.elapsedSeconds(), 12.34);
            runLoop.advance(pause);
        }
        countdown.start(); // goes on after the pause, and is nothing else
        runLoop.advance(9min - before - suspend);
        EXPECT_NEAR(countdown.remaining(), 60, 0.1) << what;
        EXPECT_NEAR(countdown.progress(), 0.9, 0.001) << what;
        runLoop.advance(1min - 1ms);
        EXPECT_TRUE(countdown.isRunning()) << what;
        runLoop.advance(151ms); // a tick and its tolerance
        EXPECT_FALSE(countdown.isRunning()) << what;
        EXPECT_EQ(countdown.elapsedSeconds(), 600) << what;
        EXPECT_THAT(notified(),
                    ElementsAre(u"Timer Complete | Your 10 minute timer has finished."_s));
        EXPECT_THAT(std::exchange(sound.played, {}), ElementsAre(Sound::Beep));
    }
    EXPECT_EQ(finished, 4);
    countdown.toggle();
    EXPECT_TRUE(countdown.isRunning() && countdown.elapsedSeconds() == 0) << "another round";
    runLoop.stall(24h);
    EXPECT_EQ(notified().size(), 1) << "what ended while the machine slept is told";
}

TEST_F(TimersTest, StopwatchRunsOnAndOnlyAFreshStartBringsItToZero)
{
    countdown.setMode(TimerMode::Stopwatch);
    countdown.start();
    runLoop.advance(3600s);
    EXPECT_EQ(countdownText(countdown.displayed()), u"1:00:00"_s);
    runLoop.stall(48h);
    EXPECT_TRUE(countdown.isRunning());
    EXPECT_EQ(countdown.remaining(), 0);
    countdown.reset();
    countdown.start();
    runLoop.advance(2s);
    EXPECT_EQ(countdownText(countdown.displayed()), u"0:02"_s);
    countdown.setPreset(3);
    EXPECT_EQ(countdown.mode(), TimerMode::Countdown);
    EXPECT_FALSE(countdown.isRunning());
    EXPECT_EQ(countdownText(countdown.displayed()), u"3:00"_s);
    EXPECT_EQ(countdown.presetMinutes(), 3);
    EXPECT_TRUE(notified().isEmpty());
}

TEST_F(TimersTest, OddLengthsEndAndAreTold)
{
    const std::pair<double, const char *> lengths[] = {
        {0, "0"}, {-5, "0"}, {90, "1"}, {std::numeric_limits<double>::quiet_NaN(), "0"}};
    for (const auto &[seconds, minutes] : lengths) {
        countdown.setTarget(seconds);
        EXPECT_EQ(countdown.progress(), 0);
        countdown.start();
        runLoop.advance(91s);
        EXPECT_FALSE(countdown.isRunning());
        EXPECT_THAT(notified(),
                    ElementsAre(u"Timer Complete | Your %1 minute timer has finished."_s.arg(
                        QLatin1StringView(minutes))));
    }
    countdown.setTarget(1e300);
    EXPECT_EQ(countdown.presetMinutes(), std::numeric_limits<int>::max());
    EXPECT_FALSE(countdownText(countdown.displayed()).startsWith(u'-'));
}

TEST_F(TimersTest, TicksShareTheWakeUpsOfOtherTimers)
{
    for (const auto offset : {0ms, 30ms, 70ms, 99ms}) {
        Task other = runLoop.every(200ms, 50ms, [] {});
        runLoop.advance(offset);
        countdown.setPreset(60);
        countdown.start();
        pomodoro.startWork();
        runLoop.advance(2s);
        const int before = runLoop.wakeUps();
        runLoop.advance(10s);
        EXPECT_NEAR(runLoop.wakeUps() - before, 100, 1) << offset.count();
        pomodoro.stop();
    }
}

TEST_F(TimersTest, TheWingShowsWhatEndsNextOnceASecond)
{
    WingTimer wing(pomodoro, countdown);
    int changes = 0;
    QObject::connect(&wing, &WingTimer::contentChanged, [&] { ++changes; });
    const auto shown = [&] {
        return wing.content() ? wing.content()->symbol + u' ' + wing.content()->text : QString();
    };
    EXPECT_EQ(shown(), QString());
    countdown.setMode(TimerMode::Stopwatch);
    countdown.start();
    EXPECT_EQ(shown(), u"stopwatch 0:00"_s);
    pomodoro.startWork();
    EXPECT_EQ(shown(), u"timer 25:00"_s);
    changes = 0;
    runLoop.advance(10s);
    EXPECT_EQ(changes, 10);
    countdown.setPreset(1);
    countdown.start();
    EXPECT_EQ(shown(), u"hourglass 1:00"_s);
    changes = 0;
    const QVariantMap fields = timerFields(pomodoro, countdown);
    runLoop.advance(900ms);
    EXPECT_LE(changes, 1);
    runLoop.advance(60s);
    EXPECT_EQ(shown(), pomodoroText(pomodoro.timeRemaining()).prepend(u"timer "_s));
    pomodoro.stop();
    EXPECT_EQ(shown(), QString());
    EXPECT_FALSE(wing.isUnderWay()) << "one is over, one was stopped";
    countdown.setPreset(1);
    countdown.start();
    runLoop.advance(1s);
    countdown.pause();
    EXPECT_EQ(shown(), QString());
    EXPECT_TRUE(wing.isUnderWay());
    countdown.reset();
    EXPECT_FALSE(wing.isUnderWay());
    EXPECT_EQ(fields.value(u"state"_s), u"working"_s);
    EXPECT_EQ(fields.value(u"mode"_s), u"countdown"_s);
    EXPECT_EQ(fields.value(u"timeRemaining"_s), 1490);
}

TEST_F(TimersTest, EndsAndDialogsBecomeHUDsAndLengthsFollowTheSettings)
{
    const QTemporaryDir folder;
    IslandDebugLogger logger(runLoop, folder.path());
    HUDManager huds(runLoop, settings, logger);
    runLoop.advance(3s); // before that nothing is shown
    FakeShortcutPublisher desktop;
    settings.pomodoroWorkMinutes.set(1);
    Timers timers({runLoop, alerts, sound, notifications, desktop}, settings, huds);
    const auto shown = [&] { return huds.currentHUD() ? huds.currentHUD()->title : QString(); };
    desktop.requests.run(u"start-pomodoro"_s);
    EXPECT_EQ(shown(), u"Pomodoro started — 1 minute of focus."_s);
    settings.pomodoroShortBreakMinutes.set(2);
    runLoop.advance(60s);
    EXPECT_EQ(shown(), u"Focus session complete"_s);
    runLoop.advance(119s);
    EXPECT_EQ(shown(), QString());
    timers.isSuppressed = [] { return true; };
    runLoop.advance(1s);
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(notified().size(), 2);
    timers.isSuppressed = [] { return false; };
    desktop.requests.run(u"start-countdown:1"_s);
    runLoop.advance(61s);
    EXPECT_EQ(shown(), u"Timer Complete"_s);
    desktop.requests.run(u"toggle-island"_s);
    EXPECT_EQ(shown(), u"Timer Complete"_s) << "the island's movement is the answer";
    timers.pomodoro().startWork();
    timers.countdown().start();
    timers.stop();
    runLoop.advance(1h);
    EXPECT_EQ(notified().size(), 1);
}

TEST(TimerTextsTest, Times)
{
    for (const char *line : {"1499.7 24:59 24:59", "65 01:05 1:05", "0 00:00 0:00", "-3 00:00 0:00",
                             "545 09:05 9:05", "3599.999 59:59 59:59", "3600 60:00 1:00:00",
                             "3723 62:03 1:02:03", "360000 6000:00 100:00:00", "nan 00:00 0:00"}) {
        const QStringList texts = QString::fromLatin1(line).split(u' ');
        EXPECT_EQ(pomodoroText(texts.at(0).toDouble()), texts.at(1));
        EXPECT_EQ(countdownText(texts.at(0).toDouble()), texts.at(2));
    }
}

TEST(TimerTextsTest, TypedLengths)
{
    const QString cases = u"10=600| 1 =60|1:30=90|0:05=5|1:02:03=3723|90s=90|1h=3600|1440=86400|"
                          "1 h 30 min=5400|2H5m=7500|24h=86400|1441=0|=0|0=0|-5=0|ten=0|1:60=0|"
                          "1:2:3:4=0|1.5=0|5 min 1 h=0|999999999999999999999=0"_s;
    for (const QString &line : cases.split(u'|')) {
        const QStringList texts = line.split(u'=');
        EXPECT_EQ(countdownLength(texts.at(0)).value_or(0), texts.at(1).toInt())
            << qPrintable(line);
    }
}

TEST(TimerTextsTest, DotsOfTheRound)
{
    using enum SessionDot;
    const struct {
        State state;
        int sessions;
        SessionDots dots;
    } cases[] = {
        {State::Idle, 0, {Open, Open, Open, Open}},
        {State::Working, 0, {Running, Open, Open, Open}},
        {State::ShortBreak, 1, {Done, Open, Open, Open}},
        {State::Working, 3, {Done, Done, Done, Running}},
        {State::LongBreak, 4, {Done, Done, Done, Done}},
        {State::Idle, 4, {Open, Open, Open, Open}},
        {State::Working, 4, {Running, Open, Open, Open}},
        {State::LongBreak, 8, {Done, Done, Done, Done}},
    };
    for (const auto &[state, sessions, dots] : cases)
        EXPECT_EQ(sessionDots(state, sessions), dots) << sessions;
}

} // namespace
} // namespace quillmere
