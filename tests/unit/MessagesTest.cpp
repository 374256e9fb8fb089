#include "messages/EmailMonitor.h"
#include "messages/MessageHUD.h"
#include "messages/NotificationCenterMonitor.h"
#include "messages/NotificationPayload.h"

#include "support/FakeMedia.h"
#include "support/FakeMessages.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <QFile>

#include <gmock/gmock.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

using Text = std::optional<QString>;

QByteArray payload(const char *name)
{
    QFile file(QStringLiteral(PAYLOADS) + u'/' + QString::fromUtf8(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

QString line(const QString &title, const Text &subtitle, const Text &body)
{
    return title + u'/' + subtitle.value_or(u"-"_s) + u'/' + body.value_or(u"-"_s);
}

TEST(NotificationPayloadTest, BothLayoutsAreRead)
{
    const std::pair<const char *, QString> cases[] = {
        {"request", u"Ada/#general/Are we on?"_s},
        {"request_wide", u"Ада 🚀/-/א\u200f <b>é</b>\n\nx"_s},
        {"request_untitled", u"New message/sub/text"_s},
        {"request_wrong_types", u"New message/-/-"_s},
        {"request_text", u"New message/-/-"_s},
        {"archive", u"Ada/Sub/Body"_s},
        {"archive_usual", u"Ada/-/Body"_s},
        {"archive_uids", u"Two/-/Three"_s},
        {"archive_astray", u"New message/-/-"_s},
        {"archive_short", u"New message/-/-"_s},
        {"empty", u"New message/-/-"_s}};
    for (const auto &[name, expected] : cases) {
        const auto read = parsedNotification({u"app"_s, u"id"_s, payload(name), 7.5});
        ASSERT_TRUE(read && read->appID == u"app"_s && read->uuid == u"id"_s) << name;
        EXPECT_EQ(line(read->title, read->subtitle, read->body), expected);
    }
}

TEST(NotificationPayloadTest, HostilePayloadsAreDropped)
{
    for (const char *name : {"array", "bomb", "beyond", "overlap"})
        EXPECT_FALSE(parsedNotification({u"app"_s, u"id"_s, payload(name), 0})) << name;
    const QByteArray good = payload("request");
    EXPECT_FALSE(
        parsedNotification({u"app"_s, u"id"_s, good + QByteArray(largestPayload, ' '), 0}));
    for (qsizetype size = 0; size < good.size(); ++size)
        EXPECT_FALSE(parsedNotification({u"app"_s, u"id"_s, good.first(size), 0})) << size;
}

struct NotificationMonitorTest : testing::Test, SettingsFixture {
    NotificationMonitorTest()
    {
        settings.showSlackHUD.set(true);
        settings.showDiscordHUD.set(true);
        const auto record = [this](const QString &app) {
            return [this, app](const QString &title, const Text &subtitle, const Text &body) {
                told.append(app + u':' + line(title, subtitle, body));
            };
        };
        monitor.onNewSlackNotification = record(u"Slack"_s);
        monitor.onNewDiscordNotification = record(u"Discord"_s);
    }

    QList<NotificationRow> &rows() { return database.files[group]; }
    void add(const QString &appID, const QString &uuid)
    {
        rows().prepend({appID, uuid, payload("request"), 0});
        rows().resize(std::min(rows().size(), qsizetype{50}));
    }
    QStringList take() { return std::exchange(told, {}); }

    static inline const QString group =
        u"/home/me/Library/Group Containers/group.com.apple.usernoted/db2/db"_s;
    static inline const QString older =
        u"/home/me/Library/Application Support/com.apple.notificationcenter/db2/db"_s;
    static inline const QString slackMessage = u"Slack:Ada/#general/Are we on?"_s;
    static inline const QString discordMessage = u"Discord:Ada/#general/Are we on?"_s;
    ManualRunLoop loop;
    FakeNotificationDatabase database;
    FakeNotificationFeed feed;
    QStringList told;
    NotificationCenterMonitor monitor{loop, settings, database, feed, u"/home/me"_s};
};

TEST_F(NotificationMonitorTest, OnlyWhatComesAfterTheStartIsAnnounced)
{
    add(u"com.tinyspeck.slackmacgap"_s, u"old"_s);
    monitor.start();
    monitor.start();
    loop.settle();
    EXPECT_THAT(take(), IsEmpty());
    add(u"com.tinyspeck.slackmacgap"_s, u"new"_s);
    add(u"com.hnc.Discord"_s, u"newer"_s);
    loop.advance(7s);
    EXPECT_EQ(take(), (QStringList{discordMessage, slackMessage}));
    loop.advance(60s);
    EXPECT_THAT(take(), IsEmpty());

    settings.showDiscordHUD.set(false);
    add(u"com.hnc.Discord"_s, u"unwatched"_s);
    loop.advance(7s);
    settings.showSlackHUD.set(false);
    database.reads.clear();
    loop.advance(20s);
    EXPECT_THAT(database.reads, IsEmpty());

    monitor.stop();
    settings.showDiscordHUD.set(true);
    add(u"com.hnc.Discord"_s, u"while stopped"_s);
    loop.advance(20s);
    monitor.start();
    loop.advance(20s);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NotificationMonitorTest, TheSecondFileIsReadWhenTheFirstHasNothing)
{
    rows() = {{u"com.other"_s, u"x"_s, payload("request"), 0},
              {u"slack"_s, u"y"_s, payload("bomb"), 0}};
    monitor.start();
    loop.settle();
    EXPECT_EQ(database.reads, (QStringList{group, older}));
    database.files[older] = {{u"org.Slack"_s, u"z"_s, payload("empty"), 0}};
    loop.advance(7s);
    EXPECT_EQ(take(), QStringList{u"Slack:New message/-/-"_s});
}

TEST_F(NotificationMonitorTest, TheSmallestIntervalOfWatchedAppsCounts)
{
    const std::tuple<bool, bool, double, double, Duration> cases[] = {
        {true, true, 3, 10, 5s},
        {true, true, 20, 10, 10s},
        {true, false, 20, 10, 20s},
        {false, false, 20, 10, 5s},
        {true, true, std::nan(""), -1, 5s}};
    for (const auto &[slack, discord, slackInterval, discordInterval, expected] : cases) {
        settings.showSlackHUD.set(slack);
        settings.showDiscordHUD.set(discord);
        settings.slackPollInterval.set(slackInterval);
        settings.discordPollInterval.set(discordInterval);
        EXPECT_EQ(notificationPollInterval(settings), expected);
    }
}

TEST_F(NotificationMonitorTest, ForgettingWhatWasSeenAnnouncesNothingAgain)
{
    monitor.start();
    loop.settle();
    for (int i = 0; i < 240; ++i) {
        add(u"slack"_s, QString::number(i));
        if (i % 40 == 39)
            loop.advance(7s);
    }
    EXPECT_EQ(take().size(), 240);
    loop.advance(60s);
    EXPECT_THAT(take(), IsEmpty());
    add(u"slack"_s, u"0"_s); // forgotten long ago
    loop.advance(7s);
    EXPECT_EQ(take().size(), 1);
}

TEST_F(NotificationMonitorTest, BothSourcesTogetherAnnounceAMessageOnce)
{
    const ParsedNotification live{u"com.tinyspeck.slackmacgap"_s, u"Ada"_s, {}, u"Are we\non?"_s};
    const auto seen = [&] { feed.listeners.notify(live); };
    add(u"slack"_s, u"old"_s);
    monitor.start();
    seen(); // before what is old is known
    EXPECT_EQ(take(), QStringList{u"Slack:Ada/-/Are we\non?"_s});
    loop.settle();
    add(u"slack"_s, u"a"_s);
    loop.advance(7s);
    EXPECT_THAT(take(), IsEmpty());
    add(u"slack"_s, u"b"_s);
    loop.advance(7s);
    seen(); // the other way round
    EXPECT_EQ(take(), QStringList{slackMessage});
    seen();
    seen();
    EXPECT_EQ(take().size(), 2);
    loop.advance(60s);
    add(u"slack"_s, u"much later"_s);
    loop.advance(7s);
    EXPECT_EQ(take(), QStringList{slackMessage});

    settings.showSlackHUD.set(false);
    seen();
    settings.showDiscordHUD.set(false);
    EXPECT_TRUE(feed.listeners.isEmpty());
    settings.showSlackHUD.set(true);
    loop.advance(60s);
    seen();
    EXPECT_EQ(take().size(), 1);
    monitor.stop();
    EXPECT_TRUE(feed.listeners.isEmpty());
}

TEST_F(NotificationMonitorTest, TheTestShowsTheNewestSeenOrNot)
{
    QStringList texts;
    const auto test = [&](WatchedNotificationApp app) {
        monitor.test(app, [&](const QString &text) { texts.append(text); });
        EXPECT_THAT(texts, IsEmpty());
        loop.settle();
        return texts.isEmpty() ? QString() : texts.takeFirst();
    };
    EXPECT_EQ(test(WatchedNotificationApp::Slack),
              u"No Slack notifications in database. Send yourself a DM or have someone message "
              u"you, then try again. If you see \"Access denied\", grant Full Disk Access: System "
              u"Settings → Privacy & Security → Full Disk Access → Quillmere."_s);
    EXPECT_THAT(take(), IsEmpty());
    add(u"discord"_s, u"x"_s);
    settings.showDiscordHUD.set(false);
    EXPECT_EQ(test(WatchedNotificationApp::Discord),
              u"Found Discord notification. Showing in island."_s);
    EXPECT_EQ(take(), QStringList{discordMessage});
}

TEST_F(NotificationMonitorTest, ACallbackMayStop)
{
    monitor.start();
    loop.settle();
    monitor.onNewSlackNotification = [&](const QString &, const Text &, const Text &) {
        told.append(u"once"_s);
        monitor.stop();
        monitor.start();
    };
    add(u"slack"_s, u"a"_s);
    add(u"slack"_s, u"b"_s);
    loop.advance(30s);
    EXPECT_EQ(take().size(), 1);
}

struct EmailMonitorTest : testing::Test, SettingsFixture {
    EmailMonitorTest()
    {
        settings.showEmailHUD.set(true);
        settings.emailPollInterval.set(10);
        monitor.onNewEmail = [this](const QString &sender, const QString &subject,
                                    const QString &detail) {
            told.append(sender + u'/' + subject + u'/' + detail);
        };
    }
    void answer(const QByteArray &output)
    {
        runner.answers[u"unread-mail"_s] = {.hasRun = true, .hasSucceeded = true, .output = output};
        runner.answerOne();
    }
    /// The next poll.
    QStringList after(const QByteArray &output)
    {
        loop.advance(35s);
        answer(output);
        return std::exchange(told, {});
    }

    ManualRunLoop loop;
    FakeScriptRunner runner;
    FakeNewMailSignal signal;
    QStringList told;
    EmailMonitor monitor{loop, settings, runner, signal};
};

TEST_F(EmailMonitorTest, MailThatComesIsAnnounced)
{
    LogCapture log;
    monitor.start();
    monitor.start();
    answer("2\rb\rOld\rAda");
    loop.advance(29s);
    EXPECT_EQ(runner.calls.size(), 1);
    loop.advance(6s);
    EXPECT_EQ(runner.calls.size(), 2);
    const std::pair<const char *, QString> polls[] = {
        {"2\nb\nOld\nAda", {}},
        {"3\r\n c \r\n Hi there \r\n Bob \r\n", u"Bob/Hi there/"_s},
        {"2\nc\nHi there\nBob", {}},
        {"2\nd\nOther\nBob", u"Bob/Other/"_s},
        {"3\nd\nOther\nBob", u"Bob/Other/"_s},
        {"error: Mail got\nan error", {}},
        {"nonsense", {}},
        {"0", {}},
        {"1\ne\n\nCy", u"Cy//"_s},
        {"0", {}}};
    for (const auto &[output, announced] : polls)
        EXPECT_EQ(after(output).join(u' '), announced) << output;
    EXPECT_THAT(log.take(), testing::ElementsAre(
                                u"[EmailMonitor] Script failed: error: Mail got an error"_s,
                                u"[EmailMonitor] Script did not tell how much mail is unread"_s));

    after("error" + QByteArray(200'000, 'x'));
    EXPECT_LT(log.take().join(QString()).size(), 600);

    settings.showEmailHUD.set(false);
    runner.calls.clear();
    loop.advance(120s);
    EXPECT_THAT(runner.calls, IsEmpty());
    monitor.stop();
    EXPECT_FALSE(monitor.isRunning());
}

TEST_F(EmailMonitorTest, AnOlderMessageIsNotNewOnceTheNewestIsRead)
{
    monitor.start();
    answer("2\nb\nNewest\nAda\n2000");
    EXPECT_THAT(after("1\na\nOlder\nAda\n1000"), IsEmpty());
    EXPECT_THAT(after("2\nb\nNewest\nAda\n2000"), IsEmpty()); // marked as unread
    EXPECT_EQ(after("3\nc\nSame second\nAda\n2000").size(), 1);
    EXPECT_EQ(after("1\nd\nNew\nAda\n2001").size(), 1);
}

TEST_F(EmailMonitorTest, WhatCameWhileItWasStoppedIsNoNews)
{
    monitor.start();
    answer("1\na\nOld\nAda\n3000");
    monitor.stop();
    monitor.start();
    answer("2\nb\nFrom another place\nAda\n2000");
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(after("3\nc\nNew\nAda\n2500").size(), 1);
    monitor.stop();
    monitor.start();
    answer("4\nd\nWhile stopped\nAda\n4000");
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(EmailMonitorTest, AMessageOfTheFutureDoesNotMakeOthersOld)
{
    loop.setWallClock(std::chrono::system_clock::time_point(1'000'000s));
    monitor.start();
    answer("1\na\nIts clock is a bit ahead\nAda\n1003600");
    EXPECT_THAT(after("1\nb\nOlder\nAda\n1003599"), IsEmpty());
    EXPECT_EQ(after("2\nc\nMuch too late\nAda\n9000000").size(), 1);
    loop.advance(1h);
    EXPECT_EQ(after("3\nd\nRight\nAda\n1003650").size(), 1);
}

TEST_F(EmailMonitorTest, ASignalAndAPollAnnounceMailOnce)
{
    monitor.start();
    answer("0");
    signal.listeners.notify(u"Ada"_s, u"Hello"_s);
    EXPECT_EQ(std::exchange(told, {}), QStringList{u"Ada/Hello/"_s});
    EXPECT_THAT(after("1\na\nHello\nAda <ada@example.org>"), IsEmpty());
    settings.showEmailHUD.set(false);
    signal.listeners.notify(u"Ada"_s, u"Unwanted"_s);
    EXPECT_THAT(told, IsEmpty());

    QString text;
    monitor.sendTestNotification([&](const QString &given) { text = given; });
    EXPECT_EQ(text, u"Test notification sent!"_s);
    EXPECT_EQ(told, QStringList{u"Quillmere/This is a test email notification/"
                                u"Testing email HUD display"_s});
}

TEST(MessageHUDTest, SaysWhoWroteAndWhat)
{
    using enum WatchedNotificationApp;
    const std::pair<HUDContent, QString> cases[] = {
        {messageHUD(Slack, u"Ada"_s, u"#general"_s, u"<b>Hi</b>"_s),
         u"Ada/#general · <b>Hi</b>/number/com.tinyspeck.slackmacgap"_s},
        {messageHUD(Discord, u" "_s, u""_s, {}),
         u"Discord/-/bubble.left.and.bubble.right.fill/com.hnc.Discord"_s},
        {messageHUD(Discord, u"🚀"_s, {}, u"שלום"_s),
         u"🚀/שלום/bubble.left.and.bubble.right.fill/com.hnc.Discord"_s},
        {emailHUD(u"\"Ada L.\" <ada@example.org>"_s, u"Hello"_s),
         u"Hello/Ada L./envelope.fill/com.apple.mail"_s},
        {emailHUD(u"\"\" <ada@example.org>"_s, u" "_s, u"note"_s),
         u"New email/ada@example.org · note/envelope.fill/com.apple.mail"_s},
        {emailHUD(u"<"_s, {}), u"New email/-/envelope.fill/com.apple.mail"_s}};
    for (const auto &[hud, expected] : cases)
        EXPECT_EQ(line(hud.title, hud.subtitle, hud.icon) + u'/' + hud.bundleID.value(), expected);
}

} // namespace
