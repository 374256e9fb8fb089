#include "helpers/MailMessage.h"
#include "messages/EmailMonitor.h"
#include "platform/linux/scripts/ProcessScriptRunner.h"

#include "support/Eventually.h"
#include "support/FakeMessages.h"
#include "support/RealFiles.h"
#include "support/SettingsFixture.h"

#include <QProcess>

#include <gmock/gmock.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(MailHeaderTest, BrokenHeadersAreReadAsWellAsCanBe)
{
    const struct {
        const char *head;
        MailHeader expected;
    } cases[] = {
        {"From: =?utf-8?B?QWTDoQ==?= L <ada@x.org>\r\nSubject: =?ISO-8859-1?Q?caf=E9?=\r\n "
         "=?utf-8?Q?_au_l?=\r\n"
         "Message-ID: <1@x>\r\n\r\n",
         {"1@x", "café au l", "Adá L <ada@x.org>"}},
        {"Subject: caf\xE9 \x80 5\nFrom: Bj\xF6rn <b@x.org>\n\n",
         {"", "café € 5", "Björn <b@x.org>"}},
        {"subject: naïve 🚀\n", {"", "naïve 🚀", ""}},
        {"Subject: =?utf-8?B?8J+a?= =?utf-8?B?gA==?=\n\n", {"", "🚀", ""}},
        {"Subject: =?gb2312?B?xOO6ww==?=\n\n", {"", "你好", ""}},
        {"Subject: =?x-unknown?Q?a_b=E9?=\n\n", {"", "a b", ""}},
        {"Subject: =?utf-8?Q?=ff=fe_broken\n\n", {"", "=?utf-8?Q?=ff=fe_broken", ""}},
        {"Subject: a\tb =?utf-8?Q?=0A0=0D=00c?=\n\n", {"", "a b  0 ?c", ""}},
        {"From: <ada@x.org>, Bob <b@x>\n\n", {"", "", "ada@x.org"}},
        {"From: not an address at all\n\n", {"", "", ""}},
        {"\n\nSubject: text\n", {"", "", ""}},
        {"", {"", "", ""}},
    };
    for (const auto &each : cases) {
        const MailHeader header = readMailHeader(each.head);
        EXPECT_EQ(header.id, each.expected.id) << each.head;
        EXPECT_EQ(header.subject, each.expected.subject) << each.head;
        EXPECT_EQ(header.sender, each.expected.sender) << each.head;
    }
    const auto longest = readMailHeader("Subject: " + std::string(900'000, 'x') + "\n\n");
    EXPECT_EQ(longest.subject.size(), 999);
}

/// Counts the questions that go through it.
struct CountingRunner : ScriptRunner {
    Task run(QLatin1StringView question, const QStringList &arguments,
             std::function<void(const ScriptAnswer &)> done) override
    {
        ++asked;
        return runner->run(question, arguments, [this, done](const ScriptAnswer &answer) {
            ++answered;
            done(answer);
        });
    }
    std::optional<ProcessScriptRunner> runner;
    int asked = 0;
    int answered = 0;
};

/// The helper in a home of its own, asked as the program does it.
struct UnreadMailTest : RealFiles, SettingsFixture {
    UnreadMailTest()
    {
        for (const char *name :
             {"MAIL", "MAILDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "NOTMUCH_CONFIG"})
            qunsetenv(name);
        qputenv("TZ", "UTC"); // what delivers here writes it into an mbox
        qputenv("HOME", directory.path().toUtf8());
        qputenv("MAIL", path(u"spool"_s).toUtf8());
        counting.runner.emplace(
            loop, ProcessScriptRunner::Places{path(u"none"_s), QStringLiteral(HELPERS)});
        settings.showEmailHUD.set(true);
        monitor.emplace(loop, settings, counting, signal);
        monitor->onNewEmail = [this](const QString &sender, const QString &subject,
                                     const QString &) { told.append(sender + u'|' + subject); };
    }
    ~UnreadMailTest() override
    {
        monitor.reset();
        counting.runner.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void deliver(const QStringList &arguments)
    {
        QDir().mkpath(QFileInfo(path(arguments.at(1))).path());
        QStringList all = arguments;
        all[1] = path(arguments.at(1));
        ASSERT_EQ(
            QProcess::execute(u"/usr/bin/python3"_s, QStringList{QStringLiteral(DELIVER)} + all),
            0);
    }
    QString ask(const QStringList &arguments = {})
    {
        std::optional<QString> answer;
        const Task task =
            counting.runner->run(scripts::unreadMail, arguments, [&](const ScriptAnswer &given) {
                EXPECT_TRUE(given.hasSucceeded) << given.errors.data();
                answer = QString::fromUtf8(given.output);
            });
        EXPECT_TRUE(eventually([&] { return answer.has_value(); }, [&] { loop.settle(); }));
        return answer.value_or(QString());
    }
    /// Count, identifier, subject, sender.
    QString unread() { return ask().section(u'\n', 0, 3).replace(u'\n', u' '); }
    QStringList afterPoll()
    {
        const int before = counting.asked;
        while (counting.asked == before) // its time limit must not pass before it runs
            loop.advance(1s);
        EXPECT_TRUE(eventually([&] { return counting.answered == counting.asked; },
                               [&] { loop.settle(); }));
        return std::exchange(told, {});
    }

    FakeNewMailSignal signal;
    QStringList told;
    CountingRunner counting;
    std::optional<EmailMonitor> monitor;
};

TEST_F(UnreadMailTest, InboxesOfEveryFormat)
{
    EXPECT_EQ(ask(), u"0"_s);
    EXPECT_EQ(ask({u"--source"_s}), QString());
    const struct {
        QStringList mail;
        const char *unread, *source;
    } steps[] = {
        {{u"maildir"_s, u"Maildir"_s, u"1@x"_s, u"Ada <a@x>"_s, u"Seen"_s, u"FS"_s},
         "0",
         "Maildir: ~/Maildir"},
        {{u"maildir"_s, u"Maildir"_s, u"2@x"_s, u"Ada <a@x>"_s, u"Flagged"_s, u"F"_s},
         "1 2@x Flagged Ada <a@x>",
         ""},
        {{u"maildir"_s, u"Maildir/.Lists"_s, u"3@x"_s, u"Ada <a@x>"_s, u"Elsewhere"_s},
         "1 2@x Flagged Ada <a@x>",
         ""},
        {{u"maildir"_s, u"Mail/work/INBOX"_s, u"4@x"_s, u"Bob <b@x>"_s, u"New"_s},
         "2 4@x New Bob <b@x>",
         "Maildir: ~/Mail/work/INBOX"},
        {{u"maildir"_s, u"Mail/work/Sent"_s, u"5@x"_s, u"Me <m@x>"_s, u"Sent"_s},
         "2 4@x New Bob <b@x>",
         ""},
        {{u"maildir"_s, u".local/share/evolution/mail/local"_s, u"6@x"_s, u"Cy <c@x>"_s, u"Evo"_s},
         "3 6@x Evo Cy <c@x>",
         "Evolution: ~/.local/share/evolution/mail/local"},
    };
    QStringList sources;
    for (const auto &step : steps) {
        deliver(step.mail);
        if (*step.source)
            sources.append(QString::fromUtf8(step.source));
        EXPECT_EQ(unread(), QString::fromUtf8(step.unread)) << step.mail.at(4).toStdString();
        EXPECT_EQ(ask({u"--source"_s}), sources.join(u'\n'));
    }
}

TEST_F(UnreadMailTest, ThunderbirdAndTheSpool)
{
    const auto box = [this](const QString &name, const QByteArray &text) {
        QDir().mkpath(QFileInfo(path(name)).path());
        write(name, text);
    };
    const QByteArray early = "From - Sat Nov 21 08:00:00 2026\r\nX-Mozilla-Status: 0000\r\n"
                             "Subject: Unread\r\nFrom: Ada <a@x>\r\nMessage-ID: <1@x>\r\n\r\n"
                             "text\r\nFrom here\r\n\r\n";
    const QByteArray later = "From - Sat Nov 21 09:00:00 2026\r\nX-Mozilla-Status: 0001\r\n"
                             "Subject: Read\r\nStatus: O\r\n\r\ntext\r\n\r\n"
                             "From - Sat Nov 21 09:30:00 2026\r\nX-Mozilla-Status: 0008\r\n"
                             "Subject: Expunged\r\n\r\ntext\r\n\r\n";
    box(u".thunderbird/p.default/Mail/pop/Inbox"_s, early + later);
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    box(u".thunderbird/p.default/ImapMail/imap/INBOX/cur/1795258800000000.eml"_s,
        "X-Mozilla-Status: 0000\nSubject: In a Maildir\nFrom: b@x\n\n");
    QDir().mkpath(path(u".thunderbird/p.default/ImapMail/imap/INBOX/tmp"_s));
    EXPECT_EQ(unread(), u"2 1795258800000000.eml In a Maildir b@x"_s);
    box(u".thunderbird/p.default/ImapMail/imap/INBOX/cur/1795258800000000.eml"_s,
        "X-Mozilla-Status: 0001\nSubject: In a Maildir\nFrom: b@x\n\n");
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    deliver({u"mbox"_s, u"spool"_s, u"7@x"_s, u"Root <r@x>"_s, u"Read"_s, u"RO"_s});
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    EXPECT_EQ(ask({u"--source"_s}), u"Thunderbird: ~/.thunderbird/p.default/Mail/pop/Inbox\n"
                                    "Thunderbird: ~/.thunderbird/p.default/ImapMail/imap/INBOX\n"
                                    "mbox: ~/spool"_s);
    box(u"spool"_s, "nothing of the kind\n\nFrom" + QByteArray(20'000'000, 'x'));
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
}

TEST_F(UnreadMailTest, NotmuchIsAskedWhereItIsSetUp)
{
    deliver({u"maildir"_s, u"Mail/INBOX"_s, u"1@x"_s, u"Ada <a@x>"_s, u"Tagged"_s});
    deliver({u"maildir"_s, u"Mail/INBOX"_s, u"2@x"_s, u"Bob <b@x>"_s, u"Seen"_s, u"S"_s});
    write(u".notmuch-config"_s,
          "[database]\npath=" + path(u"Mail"_s).toUtf8() +
              "\n[new]\ntags=unread;inbox\n[maildir]\nsynchronize_flags=true\n");
    EXPECT_EQ(unread(), u"1 1@x Tagged Ada <a@x>"_s) << "no database yet";
    ASSERT_EQ(QProcess::execute(u"notmuch"_s, {u"new"_s, u"--quiet"_s}), 0);
    EXPECT_EQ(ask({u"--source"_s}), u"notmuch: tag:inbox and tag:unread"_s);
    EXPECT_EQ(unread(), u"1 1@x Tagged Ada <a@x>"_s);
    ASSERT_EQ(QProcess::execute(u"notmuch"_s, {u"tag"_s, u"-inbox"_s, u"--"_s, u"id:1@x"_s}), 0);
    EXPECT_EQ(unread(), u"0"_s);
}

TEST_F(UnreadMailTest, MailThatComesWhileWeRunIsAnnouncedOnce)
{
    deliver({u"maildir"_s, u"Maildir"_s, u"1@x"_s, u"Ada <a@x>"_s, u"Old"_s});
    deliver({u"mbox"_s, u"spool"_s, u"2@x"_s, u"Ada <a@x>"_s, u"Old too"_s});
    monitor->start();
    EXPECT_TRUE(eventually([&] { return counting.answered == 1; }, [&] { loop.settle(); }));
    EXPECT_THAT(afterPoll(), IsEmpty());
    deliver({u"maildir"_s, u"Maildir"_s, u"3@x"_s, u"=?utf-8?B?QWTDoQ==?= <a@x>"_s, u"Hi"_s});
    EXPECT_THAT(afterPoll(), ElementsAre(u"Adá <a@x>|Hi"_s));
    EXPECT_THAT(afterPoll(), IsEmpty());
    deliver({u"mbox"_s, u"spool"_s, u"4@x"_s, u"Bob <b@x>"_s, u"From the spool"_s});
    EXPECT_THAT(afterPoll(), ElementsAre(u"Bob <b@x>|From the spool"_s));
    EXPECT_THAT(afterPoll(), IsEmpty());
}

} // namespace
