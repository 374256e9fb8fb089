#include "google/GoogleAuthManager.h"
#include "google/GoogleServicesMonitor.h"

#include "support/FakeHttpClient.h"
#include "support/FakeWeather.h"
#include "support/FakeWebAuthSession.h"
#include "support/LogCapture.h"
#include "support/SettingsFixture.h"

#include <QCryptographicHash>
#include <QUrlQuery>

#include <gmock/gmock.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

const QString item = u"com.quillmere.google/google-refresh-token"_s;

HttpResult answer(int status, const QByteArray &body, const HttpHeaders &headers = {})
{
    return HttpResponse{status, headers, body};
}

HttpResult tokens(const QByteArray &more = {})
{
    return answer(200, R"({"access_token":"at","expires_in":3600)" + more + '}');
}

const QByteArray refreshToken = R"(,"refresh_token":"rt")";
const QByteArray ada = R"(,"id_token":"h.eyJlbWFpbCI6ImFkYUBleGFtcGxlLm9yZyJ9.s")";

struct GoogleTest : testing::Test, SettingsFixture {
    GoogleTest() { settings.googleClientID.set(u" 12-ab.apps.googleusercontent.com\n"_s); }

    void signIn()
    {
        outcome.clear();
        manager.signIn([this](const auto &result) {
            outcome = result ? u"signed in"_s : text(result.error());
        });
        loop.settle();
    }
    void comeBack(const QString &query)
    {
        browser.answer(QUrl(u"com.googleusercontent.apps.12-ab:/oauth2redirect"_s + query));
        loop.settle();
    }
    void answerWith(const HttpResult &result)
    {
        EXPECT_TRUE(http.answer(result));
        loop.advance(0s);
    }
    void signInCompletely()
    {
        signIn();
        comeBack(u"?code=c"_s);
        answerWith(tokens(refreshToken + ada));
    }
    QString token()
    {
        QString got = u"-"_s;
        const Task task = manager.validAccessToken(
            [&got](const auto &result) { got = result ? *result : text(result.error()); });
        loop.advance(0s);
        while (http.answer(next))
            loop.advance(0s);
        return got;
    }
    QByteArray body() const { return http.requests.back().body; }

    ManualRunLoop loop;
    FakeHttpClient http;
    FakeKeychain keychain{loop};
    FakeWebAuthSession browser;
    HttpResult next = tokens();
    QString outcome;
    GoogleAuthManager manager{{loop, http, keychain, browser}, settings};
};

TEST_F(GoogleTest, SigningInLeavesOneTokenInTheKeyring)
{
    LogCapture log;
    keychain.secret = u"old"_s;
    signIn();
    EXPECT_TRUE(manager.isSigningIn());
    EXPECT_EQ(browser.expected.toString(), u"com.googleusercontent.apps.12-ab:/oauth2redirect"_s);
    const auto challenge = QUrlQuery(browser.opened).queryItemValue(u"code_challenge"_s);
    comeBack(u"?code=4%2F0A&scope=x"_s);
    const QByteArray verifier = body().mid(body().lastIndexOf('=') + 1);
    EXPECT_EQ(verifier.size(), 64);
    EXPECT_TRUE(body().contains("&code=4%2F0A&"));
    EXPECT_EQ(QCryptographicHash::hash(verifier, QCryptographicHash::Sha256)
                  .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals),
              challenge.toLatin1());
    answerWith(tokens(refreshToken + ada));
    EXPECT_EQ(outcome, u"signed in"_s);
    EXPECT_FALSE(manager.isSigningIn());
    EXPECT_EQ(manager.signedInEmail(), u"ada@example.org"_s);
    EXPECT_EQ(keychain.changes, (QStringList{u"remove "_s + item, u"write "_s + item}));
    EXPECT_EQ(keychain.secret.value_or(QString()), u"rt"_s);
    EXPECT_EQ(log.take(), QStringList{u"[Google] signed in"_s});
}

TEST_F(GoogleTest, NoTokenIsLostByAnotherSignInWhileOneIsStored)
{
    keychain.secret = u"old"_s;
    signIn();
    comeBack(u"?code=c"_s);
    EXPECT_TRUE(http.answer(tokens(refreshToken)));
    QString second;
    manager.signIn([&second](const auto &result) { second = text(result.error()); });
    manager.cancelSignIn();
    EXPECT_EQ(second, QString());
    loop.advance(0s);
    EXPECT_EQ(second, u"Sign-in was cancelled."_s);
    EXPECT_EQ(outcome, u"signed in"_s);
    EXPECT_EQ(keychain.secret.value_or(QString()), u"rt"_s);
}

TEST_F(GoogleTest, WhatKeepsASignInFromSucceeding)
{
    const auto failsWith = [this](const QString &expected) {
        EXPECT_EQ(outcome, expected);
        EXPECT_FALSE(manager.isSigningIn());
        EXPECT_FALSE(manager.signedInEmail());
        EXPECT_FALSE(keychain.secret);
    };
    settings.googleClientID.set(u" \n"_s);
    signIn();
    failsWith(u"Paste your Google OAuth client ID first."_s);
    settings.googleClientID.set(u"12-ab.example.com"_s);
    signIn();
    EXPECT_TRUE(outcome.contains(u"(….apps.googleusercontent.com)"_s)) << outcome.toStdString();
    EXPECT_TRUE(browser.opened.isEmpty());

    settings.googleClientID.set(u"12-ab.apps.googleusercontent.com"_s);
    signIn();
    browser.answer(tl::unexpected(WebAuthError{WebAuthError::Kind::Cancelled, {}}));
    loop.settle();
    failsWith(u"Sign-in was cancelled."_s);
    signIn();
    manager.cancelSignIn();
    loop.settle();
    failsWith(u"Sign-in was cancelled."_s);
    EXPECT_FALSE(browser.waiting) << "its session is over too";
    signIn();
    browser.answer(tl::unexpected(WebAuthError{WebAuthError::Kind::Failed, u"no browser"_s}));
    loop.settle();
    failsWith(u"no browser"_s);
    signIn();
    comeBack(u"?error=access_denied"_s);
    failsWith(u"No authorization code in Google's redirect."_s);
    for (const auto &[result, expected] :
         {std::pair(answer(400, R"({"error":"invalid_grant"})"),
                    u"Google token request failed: {\"error\":\"invalid_grant\"}"_s),
          std::pair(answer(200, "{}"), u"Malformed token response from Google."_s)}) {
        signIn();
        comeBack(u"?code=c"_s);
        answerWith(result);
        failsWith(expected);
    }
    signIn();
    comeBack(u"?code=c"_s);
    answerWith(tokens(ada));
    EXPECT_TRUE(outcome.startsWith(u"Google returned no refresh token."_s));
    for (const auto &[kind, beginning] :
         {std::pair(KeychainError::Kind::Refused, u"Your keyring is locked."_s),
          std::pair(KeychainError::Kind::Unavailable, u"There is no keyring"_s)}) {
        keychain.refusal = KeychainError{kind, u"why"_s};
        signInCompletely();
        EXPECT_TRUE(outcome.startsWith(beginning)) << outcome.toStdString();
        failsWith(outcome);
    }
}

TEST_F(GoogleTest, ATokenIsRefreshedAMinuteBeforeItsEnd)
{
    signInCompletely();
    EXPECT_EQ(token(), u"at"_s);
    loop.advance(3540s - 1ns);
    EXPECT_EQ(token(), u"at"_s);
    EXPECT_EQ(http.requests.size(), 1U);
    EXPECT_THAT(keychain.reads, IsEmpty());
    loop.advance(1ns);
    next = answer(200, R"({"access_token":"at2","expires_in":3600,"refresh_token":"rt2"})");
    EXPECT_EQ(token(), u"at2"_s);
    EXPECT_EQ(body(), "client_id=12-ab.apps.googleusercontent.com&grant_type=refresh_token"
                      "&refresh_token=rt");
    EXPECT_EQ(keychain.secret.value_or(QString()), u"rt2"_s);
    manager.forgetAccessToken();
    next = tl::unexpected(HttpError{});
    EXPECT_EQ(token(), u"Google token request failed: unknown error"_s);
    EXPECT_TRUE(manager.signedInEmail()) << "an outage is no reason to sign out";
    next = answer(200, R"({"access_token":"eternal"})");
    EXPECT_EQ(token(), u"eternal"_s);
    next = tokens();
    EXPECT_EQ(token(), u"at"_s) << "of unknown life, it is used once";
}

TEST_F(GoogleTest, RevokedOrSignedOutNothingIsLeft)
{
    signInCompletely();
    manager.forgetAccessToken();
    next = answer(400, R"({"error":"invalid_grant"})");
    EXPECT_EQ(token(), u"Not signed in to Google."_s);
    EXPECT_FALSE(keychain.secret);
    EXPECT_FALSE(manager.signedInEmail());

    signInCompletely();
    manager.signOut();
    EXPECT_EQ(token(), u"Not signed in to Google."_s);
    EXPECT_FALSE(keychain.secret);
    EXPECT_FALSE(manager.signedInEmail());

    signInCompletely();
    manager.forgetAccessToken();
    keychain.secret = tl::unexpected(KeychainError{KeychainError::Kind::NotFound, {}});
    EXPECT_EQ(token(), u"Not signed in to Google."_s);
    EXPECT_FALSE(manager.signedInEmail()) << "somebody has emptied the keyring";
}

TEST_F(GoogleTest, AClosedKeyringIsAskedOnce)
{
    settings.googleAccountEmail.set(u"ada@example.org"_s);
    keychain.secret = tl::unexpected(KeychainError{KeychainError::Kind::Refused, {}});
    EXPECT_TRUE(token().startsWith(u"Your keyring is locked."_s));
    EXPECT_TRUE(token().startsWith(u"Your keyring is locked."_s));
    EXPECT_EQ(keychain.reads, QStringList{item});
    EXPECT_TRUE(manager.signedInEmail());
}

TEST_F(GoogleTest, AnAnswerForTheFormerAccountIsNotUsed)
{
    signInCompletely();
    manager.forgetAccessToken();
    signIn();
    comeBack(u"?code=c"_s);
    QString got;
    const Task task =
        manager.validAccessToken([&got](const auto &result) { got = result.value_or(u"-"_s); });
    loop.advance(0s);
    EXPECT_EQ(http.waiting(), 2U);
    answerWith(tokens(R"(,"refresh_token":"fresh")")); // the code's
    EXPECT_EQ(http.waiting(), 0U) << "the refresh is given up";
    EXPECT_EQ(got, u"at"_s);
    EXPECT_EQ(keychain.secret.value_or(QString()), u"fresh"_s);
}

struct GoogleServicesTest : GoogleTest {
    GoogleServicesTest()
    {
        settings.googlePollInterval.set(10);
        settings.showGmailHUD.set(true);
        settings.googleAccountEmail.set(u"ada@example.org"_s);
        signInCompletely();
        http.requests.clear();
        monitor.onNewGmailMessage = [this](const QString &sender, const QString &subject) {
            told.append(sender + u'/' + subject);
        };
        monitor.onUpcomingEvent = [this](const QString &title, const QDateTime &start,
                                         const std::optional<QString> &link) {
            told.append(title + u'@' + start.toUTC().toString(u"HH:mm"_s) +
                        link.value_or(QString()));
        };
        loop.setWallClock(std::chrono::system_clock::time_point(std::chrono::seconds(1777622400)));
        monitor.start();
    }
    /// Answers as long as somebody asks; the addresses without their host.
    QStringList serve()
    {
        QStringList asked;
        while (http.waiting() > 0) {
            const auto &request = http.requests.at(http.requests.size() - http.waiting());
            EXPECT_EQ(request.headers, (HttpHeaders{{"Authorization", "Bearer at"}}));
            const QString address =
                request.url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority);
            asked.append(request.url.host().section(u'.', 0, 0) + address.section(u'?', 0, 0));
            http.answer(address.contains(u"calendar"_s)    ? events
                        : address.contains(u"messages/"_s) ? message
                                                           : inbox);
            loop.advance(0s);
        }
        return asked;
    }
    QStringList tick(Duration span = 35s)
    {
        told.clear();
        loop.advance(span);
        serve();
        return told;
    }
    static HttpResult list(const QStringList &ids, const HttpHeaders &headers = {})
    {
        QByteArray entries;
        for (const QString &id : ids)
            entries +=
                (entries.isEmpty() ? "" : ",") + QByteArray(R"({"id":")") + id.toLatin1() + R"("})";
        return answer(200, R"({"messages":[)" + entries + "]}", headers);
    }

    HttpResult inbox = list({u"a"_s});
    HttpResult message = answer(200, R"({"payload":{"headers":[{"name":"From","value":"Ada"},
                                                              {"name":"Subject","value":"Hi"}]}})");
    HttpResult events = answer(200, "{}");
    QStringList told;
    GoogleServicesMonitor monitor{loop, settings, http, manager};
};

TEST_F(GoogleServicesTest, AMessageIsAnnouncedOnceAndOldOnesNever)
{
    loop.advance(30s - 1ns);
    EXPECT_EQ(http.waiting(), 0U) << "the interval's floor";
    loop.advance(5s);
    EXPECT_EQ(serve(), QStringList{u"gmail/gmail/v1/users/me/messages"_s});
    EXPECT_THAT(told, IsEmpty());
    inbox = list({u"b"_s, u"a"_s});
    EXPECT_EQ(tick(), QStringList{u"Ada/Hi"_s});
    EXPECT_THAT(tick(), IsEmpty());
    message = answer(200, "{}");
    inbox = list({u"c"_s, u"b"_s});
    EXPECT_EQ(tick(), QStringList{u"/"_s}) << "a message may have no headers";

    settings.showGmailHUD.set(false);
    inbox = list({u"while unwanted"_s});
    EXPECT_THAT(tick(), IsEmpty());
    settings.showGmailHUD.set(true);
    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(GoogleServicesTest, AnOlderMessageIsNoNewsForBeingListedAtLast)
{
    // This machine's clock is two hours ahead.
    inbox = list({u"a"_s}, {{"date", "Fri, 01 May 2026 06:00:00 GMT"}});
    EXPECT_THAT(tick(), IsEmpty());
    for (const auto &[date, news] : {std::pair("1777614899999", 0), {"1777614900000", 1}}) {
        inbox = list({QString::fromLatin1(date)});
        message = answer(200, R"({"internalDate":")" + QByteArray(date) + R"("})");
        EXPECT_EQ(tick().size(), news) << date;
    }
}

TEST_F(GoogleServicesTest, EventsAreAnnouncedOneAPoll)
{
    settings.showGmailHUD.set(false);
    settings.showGoogleCalendarHUD.set(true);
    events = answer(200, R"({"items":[
        {"id":"x","summary":"X","start":{"dateTime":"2026-05-01T10:05:00+02:00"}},
        {"id":"y","summary":"Y","start":{"dateTime":"2026-05-01T08:06:00Z"},"hangoutLink":"!"}]})");
    EXPECT_EQ(tick(), QStringList{u"X@08:05"_s});
    EXPECT_EQ(http.requests.back().url.query(QUrl::FullyEncoded),
              u"timeMin=2026-05-01T08%3A00%3A30Z&timeMax=2026-05-01T08%3A05%3A30Z"
              "&singleEvents=true&orderBy=startTime&maxResults=5"_s);
    EXPECT_EQ(tick(), QStringList{u"Y@08:06!"_s});
    EXPECT_THAT(tick(), IsEmpty());
}

TEST_F(GoogleServicesTest, PollsDoNotOverlapAndFailuresAreTold)
{
    settings.showGoogleCalendarHUD.set(true);
    LogCapture log;
    loop.advance(200s);
    EXPECT_EQ(http.waiting(), 2U) << "one for each service";
    inbox = answer(404, R"({"error":{"code":404,"message":"Not\n here"}})");
    events = answer(200, "[1]");
    serve();
    EXPECT_EQ(log.take(),
              (QStringList{u"[Google] Gmail poll failed: HTTP 404: Not here"_s,
                           u"[Google] Calendar poll failed: the answer is no JSON object"_s}));
    events = tl::unexpected(HttpError{.text = u"no route"_s});
    inbox = answer(429, "{}", {{"retry-after", "100"}});
    tick();
    EXPECT_EQ(log.take(), (QStringList{u"[Google] Gmail poll failed: HTTP 429"_s,
                                       u"[Google] Calendar poll failed: no route"_s}));
    http.requests.clear();
    tick();
    tick();
    EXPECT_EQ(http.requests.size(), 2U) << "Gmail wants its rest";
    EXPECT_THAT(log.take(), IsEmpty()) << "offline is told of once";
    tick();
    tick();
    EXPECT_EQ(log.take(), QStringList{u"[Google] Gmail poll failed: HTTP 429"_s});
}

TEST_F(GoogleServicesTest, ARevokedAccessTokenIsReplacedAndNothingIsSaidWhenSignedOut)
{
    inbox = answer(401, "{}");
    {
        LogCapture log;
        tick();
        EXPECT_EQ(log.take(), QStringList{u"[Google] Gmail poll failed: HTTP 401"_s});
        loop.advance(35s);
        EXPECT_EQ(http.requests.back().url.path(), u"/token"_s);
        answerWith(answer(400, "invalid_grant"));
        EXPECT_FALSE(manager.signedInEmail());
        http.requests.clear();
        loop.advance(70s);
        EXPECT_THAT(log.take(), IsEmpty());
    }
    EXPECT_THAT(http.requests, IsEmpty());
}

} // namespace
