#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

using HUDType = HUDContent::HUDType;
using testing::ElementsAre;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

HUDContent hud(HUDType type, const char *title = "title")
{
    HUDContent content;
    content.title = QString::fromUtf8(title);
    content.type = type;
    return content;
}

class HUDManagerTest : public testing::Test
{
protected:
    HUDManagerTest() { logger_.setEnabled(true); }

    void pass(double time) { loop_.advance(seconds(time)); }
    void passLaunchMute() { pass(3); }

    std::string shown() const
    {
        return manager_.currentHUD() ? manager_.currentHUD()->title.toStdString() : "";
    }

    std::vector<std::string> queue() const
    {
        std::vector<std::string> titles;
        for (const HUDContent &content : manager_.hudQueue())
            titles.push_back(content.title.toStdString());
        return titles;
    }

    /// The messages in the log file, each proved to come from the manager's category and file.
    QStringList logged()
    {
        static const QRegularExpression shape(
            uR"(^\[[\d:.]{12}\] \[PROGRESS\] \[HUDManager:\d+\] (.*)$)"_s);
        logger_.drain();
        QFile file(logger_.logFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList messages;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (const QString &line : lines.mid(2, lines.size() - 3)) {
            const auto match = shape.match(line);
            EXPECT_TRUE(match.hasMatch()) << qPrintable(line);
            messages.append(match.captured(1));
        }
        return messages;
    }

    ManualRunLoop loop_;
    QTemporaryDir library_;
    SettingsFixture fixture_;
    IslandDebugLogger logger_{loop_, library_.path()};
    HUDManager manager_{loop_, fixture_.settings, logger_};
};

TEST_F(HUDManagerTest, IsMuteUntilThreeSecondsAfterLaunch)
{
    pass(2.999);
    manager_.show(hud(HUDType::Battery), true, 5);
    manager_.showVolume(100, 5);
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(manager_.isOvershoot());
    EXPECT_THAT(queue(), ElementsAre());
    pass(0.001);
    manager_.show(hud(HUDType::Battery), false, 5);
    EXPECT_EQ(shown(), "title");
}

TEST_F(HUDManagerTest, NewestReplacesAtOnceStaysItsWholeDurationAndIsToldOnce)
{
    passLaunchMute();
    int changes = 0;
    QObject::connect(&manager_, &HUDManager::currentHUDChanged, [&] { ++changes; });
    manager_.show(hud(HUDType::Battery), false, 3);
    pass(0.6);
    manager_.showVolume(40, 1);
    pass(0.6);
    manager_.showVolume(40, 1);
    EXPECT_EQ(changes, 2);
    pass(0.99);
    EXPECT_EQ(shown(), "Volume") << "the same HUD again starts its countdown again";
    pass(0.01);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(changes, 3);
    manager_.showVolume(40, 1);
    manager_.dismissCurrentHUD();
    manager_.dismissCurrentHUD();
    pass(5);
    EXPECT_EQ(changes, 5);
}

TEST_F(HUDManagerTest, AnyDurationIsSafe)
{
    passLaunchMute();
    for (const double duration : {0.0, -1.0, NaN}) {
        manager_.show(hud(HUDType::Focus), false, duration);
        pass(0);
        EXPECT_EQ(shown(), "") << duration;
    }
    for (const double duration : {infinity, 1e300}) {
        manager_.show(hud(HUDType::Focus), false, duration);
        pass(86'400);
        EXPECT_EQ(shown(), "title") << duration;
    }
}

TEST_F(HUDManagerTest, LevelHUDs)
{
    struct Case {
        double percent;
        const char *volumeIcon;
        double level;
        bool overshoot;
    };
    const Case cases[] = {
        {-5, "speaker.slash.fill", 0, true},        {0, "speaker.slash.fill", 0, true},
        {0.4, "speaker.wave.1.fill", 0.004, false}, {32.99, "speaker.wave.1.fill", 0.3299, false},
        {33, "speaker.wave.2.fill", 0.33, false},   {65.99, "speaker.wave.2.fill", 0.6599, false},
        {66, "speaker.wave.3.fill", 0.66, false},   {100, "speaker.wave.3.fill", 1, true},
        {153, "speaker.wave.3.fill", 1, true},      {infinity, "speaker.wave.3.fill", 1, true},
    };
    passLaunchMute();
    for (const Case &c : cases) {
        SCOPED_TRACE(c.percent);
        const auto expectLevel = [&](const char *icon) {
            ASSERT_TRUE(manager_.currentHUD());
            EXPECT_EQ(manager_.currentHUD()->icon, QString::fromLatin1(icon));
            EXPECT_DOUBLE_EQ(*manager_.currentHUD()->level, c.level);
            EXPECT_EQ(manager_.isOvershoot(), c.overshoot);
            pass(0.35);
            EXPECT_FALSE(manager_.isOvershoot());
        };
        manager_.showVolume(c.percent, 1);
        EXPECT_EQ(manager_.currentHUD()->type, HUDType::Volume);
        expectLevel(c.volumeIcon);
        manager_.showBrightness(c.percent, 1);
        EXPECT_EQ(shown(), "Brightness");
        expectLevel("sun.max.fill");
    }
    manager_.dismissCurrentHUD();
    manager_.showVolume(NaN, 1);
    EXPECT_EQ(shown(), "");
}

TEST_F(HUDManagerTest, EachLevelHasItsOwnOvershootSwitch)
{
    passLaunchMute();
    fixture_.settings.soundDisableOvershoot.set(true);
    manager_.showVolume(100, 1);
    EXPECT_FALSE(manager_.isOvershoot());
    manager_.showBrightness(100, 1);
    EXPECT_TRUE(manager_.isOvershoot());
    pass(0.2);
    manager_.showBrightness(100, 1);
    pass(0.3);
    EXPECT_TRUE(manager_.isOvershoot()) << "the second end stop waits its own 0.35 s";
    pass(0.05);
    EXPECT_FALSE(manager_.isOvershoot());
    fixture_.settings.displayDisableOvershoot.set(true);
    manager_.showBrightness(0, 1);
    EXPECT_FALSE(manager_.isOvershoot());
}

TEST_F(HUDManagerTest, LowBattery)
{
    passLaunchMute();
    manager_.showLowBattery(15, 2);
    EXPECT_EQ(shown(), "Low Battery");
    EXPECT_EQ(*manager_.currentHUD()->subtitle, u"15% remaining"_s);
    EXPECT_EQ(manager_.currentHUD()->type, HUDType::Battery);
    EXPECT_THAT(queue(), ElementsAre());
}

TEST_F(HUDManagerTest, QueueHoldsTheLatestOfEachType)
{
    passLaunchMute();
    int changes = 0;
    QObject::connect(&manager_, &HUDManager::hudQueueChanged, [&] { ++changes; });
    manager_.show(hud(HUDType::Volume, "volume"), true, 1);
    manager_.show(hud(HUDType::Brightness, "brightness"), true, 1);
    manager_.show(hud(HUDType::Notification, "first"), true, 1);
    manager_.show(hud(HUDType::Weather, "rain"), true, 1);
    manager_.show(hud(HUDType::Focus, "not kept"), false, 1);
    manager_.show(hud(HUDType::Notification, "second"), true, 1);
    manager_.show(hud(HUDType::Notification, "second"), true, 1);
    EXPECT_THAT(queue(), ElementsAre("second", "rain"));
    EXPECT_EQ(changes, 3);
    fixture_.settings.swipeToCycleActivity.set(false);
    manager_.show(hud(HUDType::Email, "mail"), true, 1);
    EXPECT_EQ(shown(), "mail");
    EXPECT_THAT(queue(), ElementsAre("second", "rain"));
}

TEST_F(HUDManagerTest, SteppingWrapsAndRemovingKeepsTheActivity)
{
    passLaunchMute();
    manager_.showNextActivity();
    manager_.removeActivity(0);
    EXPECT_EQ(manager_.currentQueueIndex(), 0);
    for (const auto type : {HUDType::Email, HUDType::Focus, HUDType::Weather, HUDType::Calendar})
        manager_.show(hud(type, hudTypeName(type).data()), true, 1);
    const std::pair<void (HUDManager::*)(), int> steps[] = {
        {&HUDManager::showPreviousActivity, 3},
        {&HUDManager::showNextActivity, 0},
        {&HUDManager::showPreviousActivity, 3},
        {&HUDManager::showPreviousActivity, 2},
    };
    for (const auto &[step, index] : steps) {
        (manager_.*step)();
        EXPECT_EQ(manager_.currentQueueIndex(), index);
    }
    struct Removal {
        std::vector<std::string> left;
        int index;
        int current;
    };
    const Removal removals[] = {
        {{"email", "focus", "weather", "calendar"}, -1, 2},
        {{"email", "focus", "weather", "calendar"}, 4, 2},
        {{"focus", "weather", "calendar"}, 0, 1},
        {{"focus", "weather"}, 2, 1},
        {{"focus"}, 1, 0},
        {{}, 0, 0},
    };
    for (const Removal &removal : removals) {
        manager_.removeActivity(removal.index);
        EXPECT_EQ(queue(), removal.left);
        EXPECT_EQ(manager_.currentQueueIndex(), removal.current);
    }
}

TEST_F(HUDManagerTest, ASlotMayShow)
{
    passLaunchMute();
    bool answered = false;
    QObject::connect(&manager_, &HUDManager::currentHUDChanged, [&] {
        if (!std::exchange(answered, true))
            manager_.show(hud(HUDType::Email, "answer"), true, 4);
    });
    manager_.show(hud(HUDType::Email, "question"), true, 1);
    EXPECT_EQ(shown(), "answer");
    EXPECT_THAT(queue(), ElementsAre("answer")) << "the older one must not come last";
    pass(3.9);
    EXPECT_EQ(shown(), "answer");
    pass(0.1);
    EXPECT_EQ(shown(), "");
}

TEST_F(HUDManagerTest, OtherThreadsPostAndNeverOutliveTheManager)
{
    passLaunchMute();
    auto doomed = std::make_unique<HUDManager>(loop_, fixture_.settings, logger_);
    std::jthread([&] {
        manager_.showVolume(40, 1);
        manager_.updateNowPlaying(hud(HUDType::Volume, "track"), 1, 100);
        manager_.setNetworkSpeed({1, 2});
        doomed->show(hud(HUDType::Email), false, 1);
        doomed->clearNowPlaying();
    }).join();
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(manager_.currentNowPlaying());
    doomed.reset();
    loop_.settle();
    EXPECT_EQ(shown(), "Volume");
    EXPECT_TRUE(manager_.currentNowPlaying());
    EXPECT_EQ(manager_.networkSpeed(), (NetworkSpeed{1, 2}));
}

struct Poll {
    double after; // seconds since the poll before
    const char *title;
    std::optional<bool> playing;
    double elapsed;
    double duration;
};

struct Playhead {
    const char *name;
    std::vector<Poll> polls;
    std::vector<std::string> decisions;
    double after; // seconds since the last poll
    const char *elapsed;
    const char *remaining;
    double progress;
    bool advancing;
};

class PlayheadTest : public HUDManagerTest, public testing::WithParamInterface<Playhead>
{
};

TEST_P(PlayheadTest, Follows)
{
    const Playhead &c = GetParam();
    for (const Poll &poll : c.polls) {
        pass(poll.after);
        HUDContent record = hud(HUDType::Notification, poll.title);
        record.isPlaying = poll.playing;
        manager_.updateNowPlaying(record, poll.elapsed, poll.duration);
    }
    pass(c.after);
    ASSERT_TRUE(manager_.currentNowPlaying());
    EXPECT_EQ(manager_.currentNowPlaying()->mediaElapsed->toStdString(), c.elapsed);
    EXPECT_EQ(manager_.currentNowPlaying()->mediaRemaining->toStdString(), c.remaining);
    EXPECT_DOUBLE_EQ(*manager_.currentNowPlaying()->mediaProgress, c.progress);

    std::vector<std::string> decisions;
    for (const QString &line : logged()) {
        if (!line.startsWith(u"POLL track=") && !line.startsWith(u"EMIT "))
            decisions.push_back(line.toStdString());
    }
    EXPECT_EQ(decisions, c.decisions);

    int emits = 0;
    QObject::connect(&manager_, &HUDManager::currentNowPlayingChanged, [&] { ++emits; });
    pass(1);
    EXPECT_EQ(emits, c.advancing ? 4 : 0);
}

const char *const new30 = "NEW_TRACK seeding base=30.00";
const Poll at30{0, "A", true, 30, 200};

// clang-format off
const Playhead playheads[] = {
    {"NewTrackPaused", {{0, "A", false, 65, 3725}},
     {"NEW_TRACK seeding base=65.00"}, 1, "1:05", "-1:01:00", 65.0 / 3725, false},
    {"WithoutDuration", {{0, "A", true, 10, 0}, {1, "A", true, 11, -1}},
     {"NEW_TRACK seeding base=10.00", "RESUME seeding base=11.00"}, 5, "0:11", "-0:00", 0, false},
    {"OtherTrack", {at30, {5.1, "a", {}, 1, 100}},
     {new30, "NEW_TRACK seeding base=1.00"}, 1, "0:02", "-1:38", 0.02, true},
    {"HalfASecondIsNoChange", {at30, {1.5, "A", true, 30.5, 200}},
     {new30}, 0.5, "0:32", "-2:48", 0.16, true},
    {"DriftOfTwoSecondsIsClose", {at30, {1.5, "A", true, 33.5, 200}},
     {new30, "POLL_CHANGED_BUT_CLOSE drift=2.00 ignoring"}, 0.5, "0:32", "-2:48", 0.16, true},
    {"Seek", {at30, {1.5, "A", true, 71.5, 200}},
     {new30, "SEEK_DETECTED drift=40.00 reseeding base=71.50"}, 0.5, "1:12", "-2:08", 0.36, true},
    {"OnePausedPollIsIgnored", {at30, {1, "A", false, 30, 200}, {1, "A", true, 32, 200}, {1, "A", false, 32, 200}},
     {new30, "POLL_CHANGED_BUT_CLOSE drift=0.00 ignoring"}, 1, "0:34", "-2:46", 0.17, true},
    {"TwoPausedPollsFreeze", {at30, {1, "A", false, 30, 200}, {1, "A", false, 30, 200}},
     {new30, "CONFIRMED_PAUSE freezing at 32.00"}, 9, "0:32", "-2:48", 0.16, false},
    {"SeekAndPauseInOnePoll", {at30, {1, "A", false, 30, 200}, {1, "A", false, 90, 200}},
     {new30, "SEEK_DETECTED drift=58.00 reseeding base=90.00", "CONFIRMED_PAUSE freezing at 32.00"},
     9, "0:32", "-2:48", 0.16, false},
    {"Resume", {at30, {1, "A", false, 30, 200}, {1, "A", false, 30, 200}, {9, "A", true, 30.25, 200}, {1, "A", false, 31, 200}},
     {new30, "CONFIRMED_PAUSE freezing at 32.00", "RESUME seeding base=30.25",
      "POLL_CHANGED_BUT_CLOSE drift=0.25 ignoring"}, 0.75, "0:32", "-2:48", 0.16, true},
    {"SeekWhilePaused", {{0, "A", false, 30, 200}, {1, "A", false, 31, 200}, {1, "A", false, 31.25, 200}, {1, "A", false, 32, 200}},
     {new30, "SEEK_WHILE_PAUSED reseeding base=32.00"}, 9, "0:32", "-2:48", 0.16, false},
    {"End", {{0, "A", true, 8, 10}},
     {"NEW_TRACK seeding base=8.00"}, 2, "0:10", "-0:00", 1, false},
    {"PausedPollAtTheEnd", {{0, "A", true, 9.5, 10}, {1, "A", false, 10, 10}},
     {"NEW_TRACK seeding base=9.50"}, 1, "0:10", "-0:00", 1, false},
    {"RepeatedAfterTheEnd", {{0, "A", true, 9, 10}, {2, "A", true, 0.5, 10}},
     {"NEW_TRACK seeding base=9.00", "RESUME seeding base=0.50"}, 0.5, "0:01", "-0:09", 0.1, true},
    {"Nonsense", {{0, "A", true, NaN, infinity}, {1, "A", false, -7, 200}},
     {"NEW_TRACK seeding base=0.00", "SEEK_WHILE_PAUSED reseeding base=-7.00"},
     1, "0:00", "-3:27", 0, false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Scenarios, PlayheadTest, testing::ValuesIn(playheads),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(HUDManagerTest, LogsEveryPollInFull)
{
    HUDContent record = hud(HUDType::Notification, "T \"x\"");
    manager_.updateNowPlaying(record, 12, 200);
    pass(0.25);
    record.isPlaying = false;
    manager_.updateNowPlaying(record, 12, 200);
    manager_.updateNowPlaying(record, 12, 200);
    const QString poll = u"POLL track=\"T \"x\"\" sameTrack=%1 timerRunning=%1 pollPlaying=%2 "
                         "pollElapsed=12.00 lastPoll=%3 pollChanged=%2 interp=%4 dur=200.00 "
                         "pausedPolls=%5"_s;
    const QString emitted = u"EMIT timerRunning=%1 base=%2 delta=%3 elapsed=%4 dur=200.00"_s;
    const QStringList expected{
        poll.arg(u"false"_s, u"true"_s, u"0.00"_s, u"0.00"_s, u"0"_s),
        u"NEW_TRACK seeding base=12.00"_s,
        emitted.arg(u"true"_s, u"12.00"_s, u"0.00"_s, u"12.00"_s),
        emitted.arg(u"true"_s, u"12.00"_s, u"0.25"_s, u"12.25"_s),
        poll.arg(u"true"_s, u"false"_s, u"12.00"_s, u"12.25"_s, u"0"_s),
        emitted.arg(u"true"_s, u"12.00"_s, u"0.25"_s, u"12.25"_s),
        poll.arg(u"true"_s, u"false"_s, u"12.00"_s, u"12.25"_s, u"1"_s),
        u"CONFIRMED_PAUSE freezing at 12.25"_s,
        emitted.arg(u"false"_s, u"12.25"_s, u"0.00"_s, u"12.25"_s),
    };
    EXPECT_EQ(logged(), expected);
}

TEST_F(HUDManagerTest, FreezingHoldsTheBarAndPublishesTheGivenRecord)
{
    manager_.updateNowPlaying(hud(HUDType::Notification, "A"), 30, 200);
    pass(2.6);
    HUDContent paused = *manager_.currentNowPlaying();
    paused.isPlaying = false;
    manager_.freezePlayhead(paused);
    EXPECT_EQ(manager_.currentNowPlaying(), paused);
    pass(60);
    EXPECT_EQ(manager_.currentNowPlaying(), paused);
    manager_.updateNowPlaying(paused, 30.4, 200);
    EXPECT_TRUE(logged().last().startsWith(u"EMIT timerRunning=false base=32.60 "));
}

TEST_F(HUDManagerTest, ClearingForgetsTheTrack)
{
    manager_.updateNowPlaying(hud(HUDType::Notification, "A"), 30, 200);
    manager_.clearNowPlaying();
    EXPECT_FALSE(manager_.currentNowPlaying());
    const int wakeUps = loop_.wakeUps();
    pass(60);
    EXPECT_EQ(loop_.wakeUps(), wakeUps);
    EXPECT_FALSE(manager_.currentNowPlaying());
    manager_.updateNowPlaying(hud(HUDType::Notification, "A"), 31, 200);
    EXPECT_TRUE(logged().contains(u"NEW_TRACK seeding base=31.00"_s));
}

TEST(PlayheadTimeTest, IsWholeSecondsAndNeverNegative)
{
    const std::pair<double, const char *> cases[] = {
        {0, "0:00"},       {-3, "0:00"},         {NaN, "0:00"},
        {59.99, "0:59"},   {65, "1:05"},         {3599.9, "59:59"},
        {3600, "1:00:00"}, {86'461, "24:01:01"}, {1e300, "277777777777:46:40"},
    };
    for (const auto &[elapsed, text] : cases)
        EXPECT_EQ(playheadTime(elapsed).toStdString(), text);
}

} // namespace
} // namespace quillmere
