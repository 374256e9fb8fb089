#include "app/Updater.h"
#include "support/FakeHttpClient.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"
#include "support/MemoryUserDefaults.h"

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

QByteArray feed(const QByteArray &items)
{
    return "<?xml version='1.0'?><rss xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle'"
           " xmlns:sparkle='urn:other'><channel><title>No release</title><link>https://no</link>" +
           items + "</channel></rss>";
}

QByteArray item(const QByteArray &version, const QByteArray &more = {},
                const QByteArray &link = "https://host/page")
{
    return "<item><title>T</title><link>" + link + "</link>" +
           (version.isEmpty() ? QByteArray() : "<s:version>" + version + "</s:version>") + more +
           "</item>";
}

TEST(AppcastTest, OffersOnlyWhatFits)
{
    const struct {
        const char *what;
        QByteArray items;
        QByteArray offered{}; ///< empty: none
    } cases[] = {
        {"no items", ""},
        {"the same version", item("1.9")},
        {"a newer one", item("1.10"), "1.10"},
        {"the newest wherever it stands", item("2") + item("3.0.1") + item("3"), "3.0.1"},
        {"foreign prefix", item("", "<sparkle:version>9</sparkle:version>")},
        {"enclosure only", item("", "<enclosure url='x' s:version='4' s:os='linux'/>"), "4"},
        {"element before enclosure", item("5", "<enclosure s:version='6'/>"), "5"},
        {"a delta's version", item("", "<s:deltas><enclosure s:version='9'/></s:deltas>")},
        {"another system", item("9", "<enclosure s:os='windows'/>")},
        {"a channel", item("9", "<s:channel>beta</s:channel>")},
        {"no version", item("9.x")},
        {"signs", item("-9") + item("+9") + item("9.") + item(".9")},
        {"absurdly long", item(QByteArray(65, '9'))},
        {"beyond any integer", item(QByteArray(60, '9')) + item("9"), QByteArray(60, '9')},
        {"plain http", item("9", {}, "http://host/page")},
        {"a script", item("9", {}, "javascript:alert(1)")},
        {"a file", item("9", {}, "file:///etc/passwd")},
        {"no host", item("9", {}, "https:///page")},
        {"no page", item("9", {}, "")},
    };
    for (const auto &[what, items, offered] : cases) {
        const auto updates = parseAppcast(feed(items));
        ASSERT_TRUE(updates) << what;
        const auto update = newestAbove(QStringLiteral("1.9"), *updates);
        EXPECT_EQ(update ? update->version : QString(), QString::fromLatin1(offered)) << what;
    }
}

TEST(AppcastTest, ShowsOneLineOfPlainText)
{
    const auto updates =
        parseAppcast(feed("<item><title>\n A &lt;b&gt; \n B " + QByteArray(5000, 'x') +
                          "</title><link> https://h/p </link><s:version>2</s:version>"
                          "<s:shortVersionString>Two</s:shortVersionString></item>"));
    ASSERT_EQ(updates->size(), 1U);
    EXPECT_TRUE(updates->front().title.startsWith(QStringLiteral("A <b> B x")));
    EXPECT_EQ(updates->front().title.size(), 200);
    EXPECT_EQ(updates->front().visibleVersion, QStringLiteral("Two"));
}

TEST(AppcastTest, RefusesHostileFeeds)
{
    const struct {
        QByteArray xml;
        const char *reason;
    } cases[] = {
        {"", ""},
        {"{\"version\": 9}", ""},
        {"<html><body/></html>", "not an RSS feed"},
        {feed(item("9")).chopped(8), ""},
        {feed(item("9") + QByteArray(qsizetype{1024} * 1024, ' ')), "too large"},
        {feed(QByteArray("<a>").repeated(40) + QByteArray("</a>").repeated(40)), "too deeply"},
        {feed(item("9").repeated(1001)), "too many"},
        {"<!DOCTYPE rss [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]><rss>&b;</rss>", "document type"},
        {"<!DOCTYPE rss [<!ENTITY f SYSTEM 'file:///etc/passwd'>]><rss>&f;</rss>", "document type"},
        {feed("&undeclared;" + item("9")), "undeclared"},
    };
    for (const auto &[xml, reason] : cases) {
        const auto updates = parseAppcast(xml);
        ASSERT_FALSE(updates) << xml.left(200).constData();
        EXPECT_TRUE(updates.error().contains(QLatin1StringView(reason)))
            << reason << ": " << qPrintable(updates.error());
    }
}

TEST(AppcastTest, ComparesNumberByNumber)
{
    const std::tuple<const char *, const char *, int> cases[] = {
        {"1.0", "1", 0},     {"1.2", "1.10", -1},
        {"2", "1.99.99", 1}, {"1.0.0.1", "1", 1},
        {"01.2", "1.02", 0}, {"99999999999999999999", "99999999999999999998", 1},
    };
    for (const auto &[a, b, order] : cases) {
        EXPECT_EQ(compareVersions(QString::fromLatin1(a), QString::fromLatin1(b)), order) << a << b;
        EXPECT_EQ(compareVersions(QString::fromLatin1(b), QString::fromLatin1(a)), -order)
            << b << a;
    }
}

class UpdaterTest : public ::testing::Test
{
protected:
    std::unique_ptr<Updater> makeUpdater(const QString &address = QStringLiteral("https://feed/a"))
    {
        auto updater =
            std::make_unique<Updater>(runLoop_, http_, userDefaults_, localDefaults_,
                                      Endpoint{QUrl(address), false}, QStringLiteral("1.0"));
        updater->onUpdateFound = [this](const Update &update, bool) {
            told_.append(update.version);
        };
        updater->onUpToDate = [this] { told_.append(QStringLiteral("up to date")); };
        updater->onFailure = [this](const QString &) { told_.append(QStringLiteral("failure")); };
        updater->startUpdater();
        return updater;
    }

    bool answer(const QByteArray &items, int status = 200)
    {
        return http_.answer(HttpResponse{status, {}, feed(items)});
    }

    ManualRunLoop runLoop_;
    FakeHttpClient http_;
    MemoryUserDefaults userDefaults_;
    MemoryUserDefaults localDefaults_;
    LogCapture log_;
    QStringList told_;
};

TEST_F(UpdaterTest, LooksOnceADayAcrossRestarts)
{
    auto updater = makeUpdater();
    EXPECT_EQ(userDefaults_.object(QStringLiteral("SUFeedURL")), QStringLiteral("https://feed/a"));
    runLoop_.advance(1min);
    EXPECT_EQ(http_.requests.size(), 0U) << "the start is not to be burdened";
    runLoop_.advance(2min);
    ASSERT_TRUE(answer(item("1.0")));
    runLoop_.advance(23h);
    updater = makeUpdater();
    runLoop_.advance(30min);
    EXPECT_EQ(http_.requests.size(), 1U);
    runLoop_.advance(1h);
    ASSERT_TRUE(answer(item("1.1")));
    EXPECT_THAT(told_, ElementsAre(QStringLiteral("1.1"))) << "silent while up to date";

    runLoop_.setWallClock({}); // set back by decades
    updater = makeUpdater();
    runLoop_.advance(3min);
    EXPECT_EQ(http_.waiting(), 1U);
}

TEST_F(UpdaterTest, QuietFailuresAreTriedAgainWithinTheDay)
{
    const auto updater = makeUpdater();
    runLoop_.advance(3min);
    ASSERT_TRUE(http_.answer(tl::unexpected(HttpError{HttpError::Kind::TimedOut, {}})));
    runLoop_.advance(61min);
    ASSERT_TRUE(answer(item("2"), 500));
    runLoop_.advance(61min);
    ASSERT_TRUE(http_.answer(HttpResponse{200, {}, "no feed"}));
    EXPECT_THAT(told_, IsEmpty());
    EXPECT_EQ(log_.take().size(), 3);
    runLoop_.advance(61min);
    EXPECT_EQ(http_.waiting(), 1U);
}

TEST_F(UpdaterTest, TellsTheOutcomeWhenAsked)
{
    const auto updater = makeUpdater();
    runLoop_.advance(3min);
    updater->checkForUpdates(); // while the daily one is under way
    ASSERT_TRUE(answer(item("1.0")));
    updater->checkForUpdates();
    ASSERT_TRUE(answer(item("1.0"), 404));
    updater->checkForUpdates();
    ASSERT_TRUE(answer(item("7")));
    EXPECT_THAT(told_, ElementsAre(QStringLiteral("up to date"), QStringLiteral("failure"),
                                   QStringLiteral("7")));
    EXPECT_EQ(http_.requests.size(), 3U);
}

TEST_F(UpdaterTest, WithoutAFeedNothingIsAskedOrWritten)
{
    const auto updater = makeUpdater({});
    runLoop_.advance(48h);
    updater->checkForUpdates();
    runLoop_.settle();
    EXPECT_THAT(told_, ElementsAre(QStringLiteral("failure")));
    EXPECT_TRUE(http_.requests.empty() && userDefaults_.values.isEmpty());
    EXPECT_EQ(runLoop_.wakeUps(), 0);
}

} // namespace

} // namespace quillmere
