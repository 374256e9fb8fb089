#include "helpers/MailMessage.h"
#include "messages/EmailMonitor.h"

#include "support/FakeMedia.h"
#include "support/FakeMessages.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(MailHeaderTest, BrokenHeadersAreReadAsWellAsCanBe)
{
    const std::pair<const char *, const char *> cases[] = {
        {"From: =?utf-8?B?QWTDoQ==?= L <ada@x.org>\r\nMessage-ID: <1@x>\r\n"
         "Subject: =?ISO-8859-1?Q?caf=E9?=\r\n =?utf-8?Q?_au_l?=\r\n\r\n",
         "1@x|café au l|Adá L <ada@x.org>"},
        {"Subject: caf\xE9 \x80 5\nFrom: Bj\xF6rn <b@x>\n\n", "|café € 5|Björn <b@x>"},
        {"subject: naïve 🚀\n", "|naïve 🚀|"},
        {"Subject: =?utf-8?B?8J+a?= =?utf-8?B?gA==?=\n\n", "|🚀|"},
        {"Subject: =?gb2312?B?xOO6ww==?=\n\n", "|你好|"},
        {"Subject: =?x-unknown?Q?a_b=E9?=\n\n", "|a b|"},
        {"Subject: =?utf-8?Q?=ff=fe_broken\n\n", "|=?utf-8?Q?=ff=fe_broken|"},
        {"Subject: a\tb =?utf-8?Q?=0A0=0D=00c?=\n\n", "|a b  0 ?c|"},
        {"From: <ada@x.org>, Bob <b@x>\n\n", "||ada@x.org"},
        {"From: not an address at all\n\n", "||"},
        {"\n\nSubject: text\n", "||"},
        {"", "||"}};
    for (const auto &[head, expected] : cases) {
        const MailHeader header = readMailHeader(head);
        EXPECT_EQ(header.id + '|' + header.subject + '|' + header.sender, expected) << head;
    }
    const auto longest = readMailHeader("Subject: " + std::string(900'000, 'x') + "\n\n");
    EXPECT_EQ(longest.subject.size(), 999);
}

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().data();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// The helper in a home of its own, and the monitor that gets its answers.
struct UnreadMailTest : testing::Test, SettingsFixture {
    UnreadMailTest()
    {
        for (const char *name : {"MAILDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "NOTMUCH_CONFIG"})
            qunsetenv(name);
        qputenv("TZ", "UTC"); // what delivers here writes it into an mbox
        qputenv("HOME", home.path().toUtf8());
        qputenv("MAIL", home.filePath(u"spool"_s).toUtf8());
        settings.showEmailHUD.set(true);
        monitor.onNewEmail = [this](const QString &sender, const QString &subject,
                                    const QString &) { told.append(sender + u'|' + subject); };
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QDir(home.path()).mkpath(QFileInfo(name).path());
        QFile file(home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// Format, place, identifier, sender, subject and perhaps flags.
    void deliver(const char *mail) const
    {
        QStringList arguments = QString::fromUtf8(mail).split(u'|');
        QDir(home.path()).mkpath(QFileInfo(arguments.at(1)).path());
        arguments[1] = home.filePath(arguments.at(1));
        output(u"/usr/bin/python3"_s, QStringList{QStringLiteral(DELIVER)} + arguments);
    }
    static QString ask(const QStringList &arguments = {})
    {
        return output(QStringLiteral(HELPER), arguments);
    }
    /// Count, identifier, subject, sender.
    static QString unread() { return ask().section(u'\n', 0, 3).replace(u'\n', u' '); }
    QStringList afterPoll()
    {
        loop.advance(65s);
        runner.answers[scripts::unreadMail] = {true, true, ask().toUtf8()};
        while (runner.answerOne()) {
        }
        return std::exchange(told, {});
    }

    QTemporaryDir home;
    ManualRunLoop loop;
    FakeScriptRunner runner;
    FakeNewMailSignal signal;
    QStringList told;
    EmailMonitor monitor{loop, settings, runner, signal};
};

TEST_F(UnreadMailTest, InboxesOfEveryFormat)
{
    EXPECT_EQ(ask(), u"0"_s);
    EXPECT_EQ(ask({u"--source"_s}), QString());
    const std::tuple<const char *, const char *, const char *> steps[] = {
        {"maildir|Maildir|1@x|Ada <a@x>|Seen|FS", "0", "Maildir: ~/Maildir"},
        {"maildir|Maildir|2@x|Ada <a@x>|Flagged|F", "1 2@x Flagged Ada <a@x>", ""},
        {"maildir|Maildir/.Lists|3@x|Ada <a@x>|Elsewhere", "1 2@x Flagged Ada <a@x>", ""},
        {"maildir|Mail/office/INBOX|4@x|Bob <b@x>|New", "2 4@x New Bob <b@x>",
         "Maildir: ~/Mail/office/INBOX"},
        {"maildir|Mail/office/Sent|5@x|Me <m@x>|Sent", "2 4@x New Bob <b@x>", ""},
        {"maildir|.local/share/evolution/mail/local|6@x|Cy <c@x>|Evo", "3 6@x Evo Cy <c@x>",
         "Evolution: ~/.local/share/evolution/mail/local"}};
    QStringList sources;
    for (const auto &[mail, expected, source] : steps) {
        deliver(mail);
        if (*source)
            sources.append(QString::fromUtf8(source));
        EXPECT_EQ(unread(), QString::fromUtf8(expected)) << mail;
        EXPECT_EQ(ask({u"--source"_s}), sources.join(u'\n'));
    }
}

TEST_F(UnreadMailTest, OnlyATimeThatCanBeIsReadFromAName)
{
    constexpr qint64 written = 1'600'000'000;
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const qint64 tooLate = now + 2LL * 86'400;
    const std::pair<QString, qint64> cases[] = {
        {u"1500000000.M1P2.host"_s, 1'500'000'000},
        {u"1500000000000001.eml"_s, 1'500'000'000},
        {QString::number(now + 3600) + u".host"_s, now + 3600},
        {QString::number(tooLate) + u".host"_s, written},
        {QString::number(tooLate * 1'000'000), written},
        {u"1500000000"_s, written},
        {u"1500000000_1.host"_s, written},
        {u"99999999.host"_s, written},
        {u"99999999999999.host"_s, written},
        {u"9223372036854775807.host"_s, written}};
    QDir(home.path()).mkpath(u"Maildir/new"_s);
    for (const auto &[name, arrival] : cases) {
        const QString path = u"Maildir/cur/"_s + name;
        write(path, "Subject: s\n\n");
        QFile file(home.filePath(path));
        EXPECT_TRUE(
            file.open(QIODevice::Append) &&
            file.setFileTime(QDateTime::fromSecsSinceEpoch(written), QFile::FileModificationTime));
        EXPECT_EQ(ask().section(u'\n', 4), QString::number(arrival)) << name.toStdString();
        file.remove();
    }
}

TEST_F(UnreadMailTest, ThunderbirdAndTheSpool)
{
    const QByteArray early = "From - Sat Nov 21 08:00:00 2026\r\nX-Mozilla-Status: 0000\r\n"
                             "Subject: Unread\r\nFrom: Ada <a@x>\r\nMessage-ID: <1@x>\r\n\r\n"
                             "text\r\nFrom here\r\n\r\n";
    const QByteArray later = "From - Sat Nov 21 09:00:00 2026\r\nX-Mozilla-Status: 0001\r\n"
                             "Subject: Read\r\nStatus: O\r\n\r\ntext\r\n\r\n"
                             "From - Sat Nov 21 09:30:00 2026\r\nX-Mozilla-Status: 0008\r\n"
                             "Subject: Expunged\r\n\r\ntext\r\n\r\n";
    write(u".thunderbird/p.default/Mail/pop/Inbox"_s, early + later);
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    write(u".thunderbird/p.default/ImapMail/imap/INBOX/cur/1795258800000000.eml"_s,
          "X-Mozilla-Status: 0000\nSubject: In a Maildir\nFrom: b@x\n\n");
    write(u".thunderbird/p.default/ImapMail/imap/INBOX/tmp/x"_s, {});
    EXPECT_EQ(unread(), u"2 1795258800000000.eml In a Maildir b@x"_s);
    write(u".thunderbird/p.default/ImapMail/imap/INBOX/cur/1795258800000000.eml"_s,
          "X-Mozilla-Status: 0001\nSubject: In a Maildir\nFrom: b@x\n\n");
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    deliver("mbox|spool|7@x|Root <r@x>|Read|RO");
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
    EXPECT_EQ(ask({u"--source"_s}), u"Thunderbird: ~/.thunderbird/p.default/Mail/pop/Inbox\n"
                                    "Thunderbird: ~/.thunderbird/p.default/ImapMail/imap/INBOX\n"
                                    "mbox: ~/spool"_s);
    write(u"spool"_s, "nothing of the kind\n\nFrom" + QByteArray(20'000'000, 'x'));
    EXPECT_EQ(unread(), u"1 1@x Unread Ada <a@x>"_s);
}

TEST_F(UnreadMailTest, ThunderbirdsIndexGoesBeforeTheHeaders)
{
    const QString inbox = u".thunderbird/p.default/ImapMail/imap/INBOX"_s;
    QByteArray mail;
    for (const char *id : {"1@x", "2(b)@x", "3@x", "4@x"})
        mail += QByteArray("From - Sat Nov 21 08:00:00 2026\nX-Mozilla-Status: 0000\nSubject: s\n"
                           "From: a@x\nMessage-Id: <") +
                id + ">\n\ntext\n\n";
    write(inbox, mail);
    EXPECT_EQ(unread(), u"4 4@x s a@x"_s);
    const QByteArray index =
        "// <!-- <mdb:mork:z v=\"1.4\"/> -->\n"
        "< <(a=c)> // (f=iso-8859-1)\n  (80=ns:msg:db:row:scope:msgs:all)(88=flags)\n"
        "  (89=message-id)(8A=subject)>\n"
        "<(80=1@x)(81=2$28b\\)@x)(82=3@x)(83=0)(84=[9\\)])>\n"
        "{1:^80 {(k^90:c)(s=9)1:m } \n  [1(^89^80)(^88=1)(^8A^84)]\n  [2(^89^81)(^88=10001)]\n"
        "  [3(^89=3@x)(^88^83)]}\n";
    const QByteArray change = "@$${2{@\n<(85=5@x)>\n[-3:^80(^89^82)(^88=9)]\n@$$}2}@\n";
    write(inbox + u".msf"_s, index);
    EXPECT_EQ(unread(), u"2 4@x s a@x"_s);
    write(inbox + u".msf"_s, index + change);
    EXPECT_EQ(unread(), u"1 4@x s a@x"_s);
    for (qsizetype size = 0; size < index.size(); ++size) {
        write(inbox + u".msf"_s, index.left(size) + (size % 3 ? "\\" : "<(["));
        ASSERT_TRUE(unread().endsWith(u" 4@x s a@x"_s)) << size;
    }
}

TEST_F(UnreadMailTest, NotmuchIsAskedWhereItIsSetUp)
{
    deliver("maildir|Mail/INBOX|1@x|Ada <a@x>|Tagged");
    deliver("maildir|Mail/INBOX|2@x|Bob <b@x>|Seen|S");
    write(u".notmuch-config"_s,
          "[database]\npath=" + home.filePath(u"Mail"_s).toUtf8() +
              "\n[new]\ntags=unread;inbox\n[maildir]\nsynchronize_flags=true\n");
    EXPECT_EQ(unread(), u"1 1@x Tagged Ada <a@x>"_s) << "no database yet";
    output(u"notmuch"_s, {u"new"_s, u"--quiet"_s});
    EXPECT_EQ(ask({u"--source"_s}), u"notmuch: tag:inbox and tag:unread"_s);
    EXPECT_EQ(unread(), u"1 1@x Tagged Ada <a@x>"_s);
    output(u"notmuch"_s, {u"tag"_s, u"-inbox"_s, u"--"_s, u"id:1@x"_s});
    EXPECT_EQ(unread(), u"0"_s);
}

TEST_F(UnreadMailTest, MailThatComesWhileWeRunIsAnnouncedOnce)
{
    deliver("maildir|Maildir|1@x|Ada <a@x>|Old");
    deliver("mbox|spool|2@x|Ada <a@x>|Old too");
    monitor.start();
    EXPECT_THAT(afterPoll(), IsEmpty());
    deliver("maildir|Maildir|3@x|=?utf-8?B?QWTDoQ==?= <a@x>|Hi");
    EXPECT_THAT(afterPoll(), ElementsAre(u"Adá <a@x>|Hi"_s));
    EXPECT_THAT(afterPoll(), IsEmpty());
    deliver("mbox|spool|4@x|Bob <b@x>|From the spool");
    EXPECT_THAT(afterPoll(), ElementsAre(u"Bob <b@x>|From the spool"_s));
    EXPECT_THAT(afterPoll(), IsEmpty());
}

} // namespace
