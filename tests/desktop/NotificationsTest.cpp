#include "platform/linux/notifications/BusNotificationFeed.h"
#include "platform/linux/notifications/EvolutionMail.h"
#include "platform/linux/notifications/SqliteNotificationDatabase.h"

#include "messages/NotificationCenterMonitor.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/notifications/MessageSender.h"
#include "support/LogCapture.h"
#include "support/MockService.h"
#include "support/XServer.h"

#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QFile>
#include <QUuid>

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto all = [](const QString &) { return true; };

void run(const QString &program, const QStringList &arguments)
{
    EXPECT_EQ(QProcess::execute(program, arguments), 0) << qPrintable(program);
}

void python(const QStringList &arguments)
{
    run(u"/usr/bin/python3"_s, QStringList{QStringLiteral(DATABASE_TOOL)} + arguments);
}

struct DatabaseTest : ServiceTest {
    QString create(const QString &schema, int rows = 0)
    {
        QString file = directory.filePath(schema + QString::number(rows));
        python({u"database"_s, file, schema, QString::number(rows)});
        return file;
    }
    QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir directory;
    SqliteNotificationDatabase database;
};

TEST_F(DatabaseTest, BothSchemasGiveTheSameRows)
{
    for (const char *schema : {"new", "old"}) {
        const QString file = create(QString::fromLatin1(schema));
        const auto rows = database.newestRows(file, all);
        QStringList told;
        for (const auto &row : rows)
            told.append(
                u"%1 %2 %3"_s.arg(row.appID)
                    .arg(row.deliveredDate)
                    .arg(row.uuid.size() == 36 && row.deliveredDate > 20 ? u"fresh"_s : row.uuid));
        EXPECT_THAT(told,
                    ElementsAre(u"com.tinyspeck.slackmacgap 70 fresh"_s, u"com.other 40 other"_s,
                                u"com.hnc.Discord 30 fresh"_s, u"com.hnc.Discord 20 a-text"_s,
                                u"com.tinyspeck.slackmacgap 10.5 "
                                "00000000-0000-0000-0000-000000000001"_s))
            << schema;
        EXPECT_NE(rows, database.newestRows(file, all)) << "rows without an identifier";
        EXPECT_EQ(
            database.newestRows(file, [](const QString &id) { return id == u"com.other"; }).size(),
            1);
    }
}

TEST_F(DatabaseTest, OnlyTheNewestOfManyAreRead)
{
    const auto rows = database.newestRows(create(u"new"_s, 5000), all);
    ASSERT_EQ(rows.size(), NotificationDatabase::mostRows);
    EXPECT_EQ(rows.first().deliveredDate, 5099);
    EXPECT_EQ(rows.last().deliveredDate, 5050);
}

TEST_F(DatabaseTest, FilesThatCannotBeReadAreEmpty)
{
    const QString good = create(u"new"_s, 500);
    const QString bad = directory.filePath(u"bad"_s);
    EXPECT_THAT(database.newestRows(bad, all), IsEmpty());
    EXPECT_THAT(database.newestRows(directory.path(), all), IsEmpty());
    ASSERT_EQ(::mkfifo(qPrintable(directory.filePath(u"pipe"_s)), 0600), 0);
    EXPECT_THAT(database.newestRows(directory.filePath(u"pipe"_s), all), IsEmpty());

    const QByteArray whole = bytes(good);
    QByteArray scribbled = whole;
    for (qsizetype at = 100; at < scribbled.size(); at += 3)
        scribbled[at] = static_cast<char>(at * 31);
    for (const QByteArray &damaged : {QByteArray(), QByteArray("x"), whole.first(200),
                                      whole.first(whole.size() / 2), scribbled}) {
        write(bad, damaged);
        EXPECT_THAT(database.newestRows(bad, all), IsEmpty()) << damaged.size();
    }

    QProcess writer;
    writer.start(u"sqlite3"_s, {good});
    writer.write("BEGIN EXCLUSIVE;\n.print locked\n");
    ASSERT_TRUE(eventually([&] { return writer.readAll().contains("locked"); }));
    EXPECT_THAT(database.newestRows(good, all), IsEmpty());
    writer.closeWriteChannel();
    ASSERT_TRUE(writer.waitForFinished());
    EXPECT_EQ(database.newestRows(good, all).size(), 50);

    run(u"sqlite3"_s,
        {bad + u'2', u"CREATE TABLE app(app_id, identifier); CREATE VIEW record AS WITH RECURSIVE "
                     "n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT 1 app_id, 2 uuid, i "
                     "data, i delivered_date FROM n"_s});
    EXPECT_THAT(database.newestRows(bad + u'2', all), IsEmpty()) << "a query without an end";
}

TEST_F(DatabaseTest, ADatabaseMayComeAndGo)
{
    const auto titles = [this] {
        QStringList found;
        for (const auto &each :
             storedNotifications(database, directory.path(), {WatchedNotificationApp::Slack}))
            found.append(each.title);
        return found.join(u' ');
    };
    const QString file =
        directory.filePath(u"Library/Group Containers/group.com.apple.usernoted/db2/db"_s);
    EXPECT_EQ(titles(), QString());
    QDir().mkpath(QFileInfo(file).path());
    QFile::copy(create(u"new"_s), file);
    EXPECT_EQ(titles(), u"Ada"_s);
    python({u"add"_s, file, u"com.tinyspeck.slackmacgap"_s, u"Bob"_s, u"Hi"_s});
    EXPECT_EQ(titles(), u"Bob Ada"_s);
    QFile::remove(file);
    EXPECT_EQ(titles(), QString());
}

TEST(ChatMessageTest, SendersAreKnownByAnyOfTheirNames)
{
    // Name of the program, of its desktop entry, text; the application and its text.
    const std::tuple<const char *, const char *, const char *, const char *> cases[] = {
        {"Slack", "slack", "Hi", "slackmacgap Hi"},
        {"Slack", "com.slack.Slack", "<b>Hi</b> &amp;lt; <3", "slackmacgap Hi &lt; <3"},
        {"", "slack_slack", "", "slackmacgap"},
        {"discord", "discord-canary", "a &lt;b&gt; c", "Discord a <b> c"},
        {"discord", "com.discordapp.Discord", " <a href=\"https://x.org\">x</a> ", "Discord x"},
        {"Vesktop", "dev.vencord.Vesktop", "Hi", "Discord Hi"},
        {"Google Chrome", "google-chrome", "app.slack.com\n\nHi\nyou", "slackmacgap Hi\nyou"},
        {"Chromium", "chromium", "<a href=\"https://discord.com/\">discord.com</a>\n\nHi",
         "Discord Hi"},
        {"Chromium", "org.chromium.Chromium", "Discord.com", "Discord"},
        {"Slack", "chrome-abcdef-Default", "app.slack.com\n\nHi", "slackmacgap Hi"},
        {"Chromium", "chromium", "evil.com\n\ndiscord.com", ""},
        {"Chromium", "chromium", "notdiscord.com\n\nHi", ""},
        {"Chromium", "chromium", "see discord.com\n\nHi", ""},
        {"Mail", "org.gnome.Geary", "discord.com\n\nHi", ""},
        {"Slackware Updates", "slackpkg", "Hi", ""},
        {"Firefox", "firefox", "discord.com\n\nHi", ""},
    };
    for (const auto &[appName, desktopEntry, body, expected] : cases) {
        const auto message = chatMessage({.appName = QString::fromUtf8(appName),
                                          .desktopEntry = QString::fromUtf8(desktopEntry),
                                          .body = QString::fromUtf8(body),
                                          .hasMarkup = true});
        const QString given =
            !message ? QString()
                     : message->appID.split(u'.').last() + u' ' + message->body.value_or(QString());
        EXPECT_EQ(given.trimmed(), QString::fromUtf8(expected)) << body;
    }
    const auto page = chatMessage({.appName = u"Chromium"_s, .origin = u"app.slack.com"_s});
    EXPECT_TRUE(page && page->title == u"New message"_s && !page->body);
}

struct FeedTest : ServiceTest {
    FeedTest()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        listener = feed.onNotification([this](const ParsedNotification &notification) {
            told.append(notification.appID + u'|' + notification.title + u'|' +
                        notification.body.value_or(u"-"_s));
            EXPECT_FALSE(uuids.contains(notification.uuid));
            uuids.insert(notification.uuid);
        });
    }
    ~FeedTest() override
    {
        dunst.kill();
        dunst.waitForFinished();
    }
    void startDunst()
    {
        display.emplace();
        dunst.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        dunst.start(u"dunst"_s, {u"-config"_s, u"/dev/null"_s});
        ASSERT_TRUE(eventually([&] { return client.interface()->isServiceRegistered(server); }));
    }
    static void notify(const QDBusConnection &from, const QString &title, uint replaced = 0)
    {
        auto call = QDBusMessage::createMethodCall(server, u"/org/freedesktop/Notifications"_s,
                                                   server, u"Notify"_s);
        call << u"Slack"_s << replaced << QString() << title << QString() << QStringList()
             << QVariantMap() << -1;
        from.send(call);
    }
    /// Whether the feed sees what is sent now; a marker is sent until it does.
    bool sees()
    {
        const bool isSeen =
            eventually([&] { return told.contains(u"com.tinyspeck.slackmacgap|marker|-"_s); },
                       [&] { notify(client, u"marker"_s); });
        settle();
        told.clear();
        return isSeen;
    }
    /// Until all that was sent is there: the last one is told after everything before it.
    void settle()
    {
        const QString last = QUuid::createUuid().toString();
        notify(client, last);
        EXPECT_TRUE(eventually([&] { return !told.filter(last).isEmpty(); }));
        told.removeIf([&](const QString &line) { return line.contains(last); });
    }

    static inline const QString server = u"org.freedesktop.Notifications"_s;
    std::optional<XServer> display;
    QDBusConnection client = bus.connect();
    QProcess dunst;
    QtRunLoop loop;
    BusNotificationFeed feed{loop, bus.address().section(u',', 0, 0)}; // any bus that is there
    QStringList told;
    QSet<QString> uuids;
    Task listener;
};

TEST_F(FeedTest, MessagesAreSeenAndStillShown)
{
    startDunst();
    ASSERT_TRUE(sees());
    const auto shown = [&] {
        QProcess control;
        control.start(u"dunstctl"_s, {u"count"_s, u"displayed"_s});
        control.waitForFinished();
        return control.readAll().trimmed().toInt();
    };
    const QString owner = client.interface()->serviceOwner(server);
    const int before = shown();
    QElapsedTimer delay; // with the start and the end of the program that sends
    delay.start();
    run(u"notify-send"_s, {u"-a"_s, u"Slack"_s, u"-h"_s, u"string:desktop-entry:slack"_s, u"Ada"_s,
                           u"Are we on for <b>six</b>?"_s});
    EXPECT_TRUE(eventually([&] { return told.size() == 1; }));
    RecordProperty("delayMs", static_cast<int>(delay.elapsed()));
    run(u"notify-send"_s, {u"-a"_s, u"discord"_s, u"-h"_s,
                           u"string:desktop-entry:com.discordapp.Discord"_s, u"Bob (#general)"_s});
    run(u"notify-send"_s, {u"-a"_s, u"Chat App"_s, u"Ada"_s, u"Slack is down"_s});
    settle();
    EXPECT_THAT(told, ElementsAre(u"com.tinyspeck.slackmacgap|Ada|Are we on for six?"_s,
                                  u"com.hnc.Discord|Bob (#general)|-"_s));
    EXPECT_EQ(client.interface()->serviceOwner(server), owner);
    EXPECT_TRUE(eventually([&] { return shown() >= before + 3; }));
}

TEST_F(FeedTest, RelayedAndRepeatedNotificationsAreOne)
{
    ASSERT_TRUE(sees());
    const auto relay = bus.connect();
    notify(client, u"twice the same"_s);
    notify(client, u"twice the same"_s);
    settle();
    notify(relay, u"twice the same"_s);
    notify(client, u"again"_s);
    notify(client, u"again"_s, 7);
    notify(client, u"changed"_s, 7);
    auto call =
        QDBusMessage::createMethodCall(u"org.gtk.Notifications"_s, u"/org/gtk/Notifications"_s,
                                       u"org.gtk.Notifications"_s, u"AddNotification"_s);
    call << u"com.slack.Slack"_s << u"id"_s
         << QVariantMap{{u"title"_s, u"GTK"_s}, {u"body"_s, u"<b>plain</b>"_s}};
    client.send(call);
    call.setArguments({u"Slack"_s, 3});
    client.send(call);
    settle();
    const QString slack = u"com.tinyspeck.slackmacgap|"_s;
    EXPECT_THAT(told,
                ElementsAre(slack + u"twice the same|-", slack + u"twice the same|-",
                            slack + u"again|-", slack + u"changed|-", slack + u"GTK|<b>plain</b>"));
}

TEST_F(FeedTest, ABusThatComesBackIsWatchedAgain)
{
    ASSERT_TRUE(sees());
    LogCapture log;
    bus.stop();
    ASSERT_TRUE(eventually([&] { return log.take().filter(u"[Notifications]"_s).size() == 1; }));
    bus.start();
    client = bus.connect();
    EXPECT_TRUE(sees());
    listener.cancel();
    notify(client, u"nobody listens"_s);
    listener = feed.onNotification([this](const ParsedNotification &given) {
        told.append(given.appID + u'|' + given.title + u"|-");
    });
    EXPECT_TRUE(sees());
}

TEST_F(FeedTest, EvolutionTellsOfMail)
{
    EvolutionMail evolution(bus.connect());
    QStringList mail;
    const Task mailListener =
        evolution.onNewMail([&](const QString &sender, const QString &subject) {
            mail.append(sender + u'|' + subject);
        });
    run(u"gdbus"_s, {u"emit"_s, u"--session"_s, u"-o"_s, u"/org/gnome/evolution/mail/newmail"_s,
                     u"-s"_s, u"org.gnome.evolution.mail.dbus.Signal.Newmail"_s, u"('Inbox',)"_s,
                     u"('Inbox',)"_s, u"(uint32 2,)"_s, u"('msg_uid:17',)"_s,
                     u"('msg_sender:Ada <ada@example.test>',)"_s, u"('msg_subject:Hello',)"_s});
    EXPECT_TRUE(eventually([&] { return !mail.isEmpty(); }));
    EXPECT_THAT(mail, ElementsAre(u"Ada <ada@example.test>|Hello"_s));
}

} // namespace
} // namespace quillmere
