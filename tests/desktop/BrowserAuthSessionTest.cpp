#include "platform/linux/desktop/BrowserAuthSession.h"

#include "support/ManualRunLoop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const QByteArray line("x-scheme-handler/org.ex.1-a=com.quillmere.Quillmere.sign-in.desktop\n");

TEST(SchemeHandlerTest, OnlyOurLineComesAndGoes)
{
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"", "[Default Applications]\n" + line},
        {"[Default Applications]\na=b\n", "[Default Applications]\n" + line + "a=b\n"},
        {"#x\n\n[Default Applications]\r\na=b",
         "#x\n\n[Default Applications]\r\n" + line + "a=b\n"},
        {"[Added Associations]\nc=d;\n",
         "[Added Associations]\nc=d;\n[Default Applications]\n" + line},
        {"x=[Default Applications]\n",
         "x=[Default Applications]\n[Default Applications]\n" + line}};
    for (const auto &[before, after] : cases) {
        EXPECT_EQ(withHandler(before, u"org.ex.1-a"_s), after);
        EXPECT_EQ(withHandler(after, u"org.ex.1-a"_s), after);
        EXPECT_FALSE(withoutHandler(after).contains("quillmere"));
        EXPECT_TRUE(withoutHandler(after).startsWith(before));
    }
    const QByteArray shared("a=com.quillmere.Quillmere.sign-in.desktop;b.desktop;\n");
    EXPECT_EQ(withoutHandler(shared), shared);
}

struct BrowserAuthSessionTest : testing::Test {
    Task start()
    {
        outcome.clear();
        Task task = session->start(QUrl(u"https://ex.org/in"_s), QUrl(u"org.ex.1-a:/back"_s),
                                   [this](const WebAuthSession::Result &result) {
                                       outcome =
                                           result ? result->toString()
                                           : result.error().kind == WebAuthError::Kind::Cancelled
                                               ? u"cancelled"_s
                                               : result.error().text;
                                   });
        loop.settle();
        return task;
    }
    bool take(const QString &address)
    {
        const bool taken = session->take(QUrl(address));
        loop.settle();
        return taken;
    }
    bool isRegistered() const
    {
        QFile list(config() + u"/mimeapps.list"_s);
        const bool isListed = list.open(QIODevice::ReadOnly) && list.readAll().contains(line);
        const bool isEntered =
            QFile::exists(data() + u"/applications/com.quillmere.Quillmere.sign-in.desktop"_s);
        EXPECT_EQ(isListed, isEntered);
        return isEntered;
    }
    QString config() const { return dir.filePath(u"config"_s); }
    QString data() const { return dir.filePath(u"data"_s); }

    QTemporaryDir dir;
    ManualRunLoop loop;
    QStringList opened;
    bool hasBrowser = true;
    QString outcome;
    std::optional<BrowserAuthSession> session{
        std::in_place, loop,
        SchemeHandlerPlaces{.configHome = config(), .dataHome = data(), .program = u"/bin/true"_s},
        [this](const QUrl &url) {
            EXPECT_TRUE(isRegistered()) << "before the browser opens";
            opened.append(url.toString());
            return hasBrowser;
        }};
};

TEST_F(BrowserAuthSessionTest, TheRedirectIsTakenOnceAndNothingElse)
{
    EXPECT_FALSE(take(u"org.ex.1-a:/back?code=0"_s));
    const Task task = start();
    EXPECT_EQ(opened, QStringList{u"https://ex.org/in"_s});
    for (const QString &other : {u"org.ex.1-a:/back/?code=1"_s, u"org.ex.1-a:/bac%6b/../x"_s,
                                 u"org.ex.1:/back"_s, u"org.ex.1-a://host/back"_s,
                                 u"org.ex.1-a://me@/back"_s, u"https://ex.org/back"_s, QString()})
        EXPECT_FALSE(take(other)) << other.toStdString();
    EXPECT_TRUE(isRegistered());
    EXPECT_TRUE(take(u"org.ex.1-a:/back?code=1"_s));
    EXPECT_EQ(outcome, u"org.ex.1-a:/back?code=1"_s);
    EXPECT_FALSE(isRegistered());
    EXPECT_FALSE(QFile::exists(config() + u"/mimeapps.list"_s)) << "there was none";
    EXPECT_FALSE(take(u"org.ex.1-a:/back?code=2"_s));
}

TEST_F(BrowserAuthSessionTest, HoweverASessionEndsNothingStaysRegistered)
{
    Task task = start();
    loop.advance(5min - 1ns);
    EXPECT_TRUE(isRegistered());
    loop.advance(1ns);
    EXPECT_EQ(outcome, u"cancelled"_s);
    EXPECT_FALSE(isRegistered());

    task = start();
    task.cancel();
    loop.settle();
    EXPECT_FALSE(isRegistered());
    EXPECT_EQ(outcome, QString());

    hasBrowser = false;
    task = start();
    EXPECT_EQ(outcome, u"There is no browser to sign in with."_s);
    EXPECT_FALSE(isRegistered());

    hasBrowser = true;
    task = start();
    const Task next = start();
    EXPECT_TRUE(isRegistered()) << "for the newer one";
    session.reset(); // quit
    loop.settle();
    EXPECT_FALSE(isRegistered());
}

TEST_F(BrowserAuthSessionTest, WhatCannotBeRegisteredIsSaid)
{
    QFile blocker(data());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const Task task = start();
    EXPECT_TRUE(outcome.startsWith(u"The browser would not find its way back: "_s));
    EXPECT_TRUE(opened.isEmpty());
}

} // namespace
