#include "google/Backoff.h"
#include "google/CalendarEvents.h"
#include "google/DayEvents.h"
#include "google/GmailMessages.h"
#include "google/ISO8601.h"
#include "google/TokenRequest.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

TEST(AuthRequestTest, TheChallengeIsTheHashOfTheVerifier)
{
    // The pair in appendix B of RFC 7636, made from fewer bytes.
    const QByteArray verifier("dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk");
    const PKCEPair pair =
        makePKCEPair(QByteArray::fromBase64(verifier, QByteArray::Base64UrlEncoding));
    EXPECT_EQ(pair.verifier, verifier);
    EXPECT_EQ(pair.challenge, "E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM");
    EXPECT_EQ(makePKCEPair(QByteArray(48, '\xfb')).verifier, QByteArray("-_v7").repeated(16));
}

TEST(AuthRequestTest, OnlyAnInstalledAppsClientIDIsReversed)
{
    const std::pair<QString, QString> cases[] = {
        {u"12-ab.apps.googleusercontent.com"_s, u"com.googleusercontent.apps.12-ab"_s},
        {u".apps.googleusercontent.com"_s, {}},
        {u"12-ab.apps.googleusercontent.com.evil"_s, {}},
        {u"12-ab.apps.googleusercontent.co"_s, {}},
        {u"12;ab\n.apps.googleusercontent.com"_s, {}},
        {{}, {}}};
    for (const auto &[clientID, reversed] : cases)
        EXPECT_EQ(reversedClientID(clientID).value_or(QString()), reversed)
            << clientID.toStdString();
}

TEST(TokenRequestTest, AnswersAndWhatIsWrongWithThem)
{
    const FormFields sent{{"grant_type"_L1, u"refresh_token"_s}, {"refresh_token"_L1, u"1//sec"_s}};
    const std::tuple<int, QByteArray, QString> cases[] = {
        {200, R"({"access_token": "at"})", {}},
        {200, R"({"access_token": 7})", u"Malformed token response from Google."_s},
        {200, "[]", u"Malformed token response from Google."_s},
        {400, R"({"error": "x"})", u"Google token request failed: {\"error\": \"x\"}"_s},
        {500, "", u"Google token request failed: "_s},
        {500, "\xff\xfe", u"Google token request failed: unknown error"_s},
        {201, R"({"access_token":"at9"})",
         u"Google token request failed: {\"access_token\":\"…\"}"_s},
        {400, "bad 1//sec 1%2F%2Fsec", u"Google token request failed: bad … …"_s}};
    for (const auto &[status, body, message] : cases) {
        const auto result = tokenResult(HttpResponse{.status = status, .body = body}, sent);
        EXPECT_EQ(result ? QString() : text(result.error()), message);
    }
    const auto none = tokenResult(tl::unexpected(HttpError{}), sent);
    EXPECT_EQ(text(none.error()), u"Google token request failed: unknown error"_s);
}

TEST(TokenRequestTest, TheEmailOfAnIDToken)
{
    const auto token = [](const QByteArray &payload) {
        return QString::fromLatin1(
            "h." +
            payload.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals) +
            ".s");
    };
    const QByteArray wide = R"({"email":"ada@example.org","x":"??>>"})"; // needs "-" and "_"
    EXPECT_EQ(emailOfIDToken(token(wide)), u"ada@example.org"_s);
    for (const QString &bad :
         {token(R"({"email":7})"), token("[]"), u"a.!!!.c"_s, u"a"_s, QString()})
        EXPECT_FALSE(emailOfIDToken(bad)) << bad.toStdString();
}

TEST(ISO8601Test, BothFormsWithOffsets)
{
    const std::pair<const char *, const char *> cases[] = {
        {"2026-05-01T10:00:00+02:00", "2026-05-01T08:00:00.000Z"},
        {"2026-05-01T10:00:00-0330", "2026-05-01T13:30:00.000Z"},
        {"2026-03-29T02:30:00Z", "2026-03-29T02:30:00.000Z"}, // an hour many zones do not have
        {"2026-05-01T10:00:00.25Z", "2026-05-01T10:00:00.250Z"},
        {"2026-05-01T10:00:00.123456789+01:00", "2026-05-01T09:00:00.123Z"},
        {"2026-05-01", ""},
        {"2026-05-01T10:00:00", ""},
        {"2026-05-01 10:00:00Z", ""},
        {"2026-13-01T10:00:00Z", ""},
        {"2026-02-30T10:00:00Z", ""},
        {"2026-05-01T25:00:00Z", ""},
        {"2026-05-01T10:00:00.Z", ""},
        {"2026-05-01T10:00:00+99:00", ""},
        {"2026-05-01T10:00:00Zoo", ""},
        {"", ""}};
    for (const auto &[written, meant] : cases) {
        const auto time = parseISO8601(QString::fromLatin1(written));
        EXPECT_EQ(time ? time->toUTC().toString(Qt::ISODateWithMs).toStdString() : "", meant)
            << written;
    }
}

TEST(GmailMessagesTest, HeadersAreFoundHoweverTheyAreSpelled)
{
    EXPECT_EQ(unreadMailRequest(),
              u"/gmail/v1/users/me/messages?q=in%3Ainbox%20is%3Aunread&maxResults=10"_s);
    EXPECT_EQ(messageIDs(object(R"({"messages":[{"id":"a"},{"id":7},{},{"id":"b"}]})")),
              (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(messageIDs(object(R"({"resultSizeEstimate":0})")).isEmpty());
    const auto message = gmailMessage(object(
        R"({"payload":{"headers":[{"name":"SUBJECT","value":"Hi"},{"name":"from","value":"Ada"}]}})"));
    EXPECT_EQ(message.sender + u'/' + message.subject, u"Ada/Hi"_s);
    const auto bare = gmailMessage(object(R"({"payload":{"headers":7}})"));
    EXPECT_EQ(bare.sender + u'/' + bare.subject, u"/"_s);
}

TEST(CalendarEventsTest, TheFirstThatIsStillToComeIsElected)
{
    const QDateTime now(QDate(2026, 5, 1), QTime(8, 0), Qt::UTC);
    EXPECT_EQ(
        upcomingEventsRequest(now, 5min),
        u"/calendar/v3/calendars/primary/events?timeMin=2026-05-01T08%3A00%3A00Z"
        "&timeMax=2026-05-01T08%3A05%3A00Z&singleEvents=true&orderBy=startTime&maxResults=5"_s);
    const QJsonObject answer = object(R"({"items":[
        {"id":"all-day","summary":"Holiday","start":{"date":"2026-05-01"}},
        {"id":"running","summary":"Now","start":{"dateTime":"2026-05-01T10:00:00+02:00"}},
        {"summary":"nameless","start":{"dateTime":"2026-05-01T08:01:00Z"}},
        {"id":"a","start":{"dateTime":"2026-05-01T10:02:00+02:00"},
         "htmlLink":"https://calendar.google.com/a"},
        {"id":"b","summary":"Stand-up","start":{"dateTime":"2026-05-01T08:03:00.000Z"},
         "htmlLink":"https://calendar.google.com/b","hangoutLink":"https://meet.google.com/b"}]})");
    SeenSet notified;
    auto event = eventToAnnounce(answer, notified, now);
    ASSERT_TRUE(event && event->id == u"a"_s);
    EXPECT_EQ(event->title, u"Upcoming event"_s);
    EXPECT_EQ(event->link, u"https://calendar.google.com/a"_s);
    notified.insert(u"a"_s);
    event = eventToAnnounce(answer, notified, now);
    ASSERT_TRUE(event && event->id == u"b"_s);
    EXPECT_EQ(event->title + event->link.value_or(QString()),
              u"Stand-uphttps://meet.google.com/b"_s);
    notified.insert(u"b"_s);
    EXPECT_FALSE(eventToAnnounce(answer, notified, now));
    const QDateTime local(QDate(2026, 5, 1), QTime(14, 5));
    EXPECT_EQ(calendarHUD(u"x"_s, local.toUTC(), {}).subtitle, u"2:05 PM"_s);
}

TEST(DayEventsTest, WhatTakesPlaceAndWhatOneIsBusyWith)
{
    const QByteArray ten = R"({"start":{"dateTime":"2026-05-01T10:00:00+02:00"},
                               "end":{"dateTime":"2026-05-01T09:00:00Z"})";
    const struct {
        QByteArray items;
        bool isEmpty, isBusy;
    } cases[] = {
        {"[]", true, false},
        {"[" + ten + "}]", false, true},
        {"[" + ten + R"(,"transparency":"transparent"}])", false, false},
        {"[" + ten + R"(,"attendees":[{"responseStatus":"declined"}]}])", false, true},
        {"[" + ten + R"(,"attendees":[{"self":true,"responseStatus":"declined"}]}])", true, false},
        {"[" + ten + R"(,"status":"cancelled"}])", true, false},
        {"[" + ten + R"(,"eventType":"workingLocation"}])", true, false},
        {R"([{"start":{"date":"2026-05-01"},"end":{"date":"2026-05-02"}}])", false, false},
        {R"([{"start":{"dateTime":"2026-05-01T08:00:00Z"},"end":{"dateTime":"soon"}}])", false,
         false},
        {"[7]", true, false}};
    const auto at = [](int hour, int second) {
        return QDateTime(QDate(2026, 5, 1), QTime(hour, 0), Qt::UTC).addSecs(second);
    };
    for (const auto &[items, isEmpty, isBusy] : cases) {
        const auto day = dayEvents(object(R"({"items":)" + items + '}'));
        ASSERT_TRUE(day) << items.toStdString();
        EXPECT_EQ(day->isEmpty, isEmpty) << items.toStdString();
        EXPECT_EQ(day->isBusy(at(8, 0)), isBusy) << items.toStdString();
        EXPECT_FALSE(day->isBusy(at(8, -1))) << "before it begins";
        EXPECT_FALSE(day->isBusy(at(9, 0))) << "it is over";
    }
    EXPECT_FALSE(dayEvents({})) << "no list is not an empty one";
}

TEST(SeenSetTest, WhatIsStillListedIsNeverForgotten)
{
    SeenSet seen;
    EXPECT_TRUE(seen.insert(u"old but listed"_s));
    for (int number = 1; number <= 200; ++number) {
        EXPECT_TRUE(seen.insert(QString::number(number)));
        if (number < 200) {
            EXPECT_EQ(seen.size(), number + 1);
        }
        if (number % 10 == 0) {
            EXPECT_FALSE(seen.insert(u"old but listed"_s)) << number;
        }
    }
    EXPECT_EQ(seen.size(), 100);
    EXPECT_FALSE(seen.contains(u"1"_s));
}

TEST(BackoffTest, WaitsAsLongAsItIsToldElseLongerEachTime)
{
    const Instant now{10h};
    const QDateTime date(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
    const auto answer = [](int status, const QByteArray &body = {}, const QByteArray &after = {}) {
        return HttpResponse{
            status, after.isEmpty() ? HttpHeaders{} : HttpHeaders{{"retry-after", after}}, body};
    };
    const std::pair<HttpResponse, Duration> cases[] = {
        {answer(429), 1min},
        {answer(503), 2min},
        {answer(403, R"({"reason":"userRateLimitExceeded"})"), 4min},
        {answer(429, {}, "90"), 90s},
        {answer(429, {}, "Sat, 21 Nov 2026 12:10:00 GMT"), 10min},
        {answer(429, {}, "soon"), 30min},
        {answer(429, {}, "1e9"), 24h},
        {answer(403), 0s},
        {answer(429), 1min},
        {answer(200), 0s}};
    Backoff backoff;
    for (const auto &[response, pause] : cases) {
        backoff.answered(response, now, date);
        EXPECT_TRUE(backoff.mayAsk(now + pause)) << response.status;
        EXPECT_EQ(backoff.mayAsk(now + pause - 1ns), pause == 0s) << response.status;
    }
}

} // namespace
