#include "nowplaying/ArtworkAddresses.h"
#include "nowplaying/BrowserTabs.h"
#include "nowplaying/Browsers.h"
#include "nowplaying/LookupPauses.h"
#include "nowplaying/PlayerReport.h"
#include "platform/MediaRemote.h"

#include <gmock/gmock.h>

#include <limits>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(PlayerReportTest, ReadsTheScriptsFields)
{
    const auto all = parseScriptText(u" Song || Artist||200.5|| -3 ||app||12||34||1\n");
    ASSERT_TRUE(all);
    EXPECT_EQ(all->record, (NowPlayingInfo{.title = q("Song"),
                                           .artist = q("Artist"),
                                           .duration = 200.5,
                                           .elapsedTime = -3,
                                           .bundleID = q("app"),
                                           .isPlaying = true}));
    EXPECT_EQ(all->albumID + u'/' + all->storeID, q("12/34"));
    EXPECT_FALSE(parseScriptText(u""));
    EXPECT_FALSE(parseScriptText(u"  ||Artist||1"));
    for (const char *text :
         {"T", "T||||||", "T||||nan||inf||||../x||-1||", "T||||0||x||||1 2||x||y"}) {
        const auto report = parseScriptText(q(text));
        ASSERT_TRUE(report) << text;
        EXPECT_EQ(report->record, NowPlayingInfo{.title = q("T")}) << text;
        EXPECT_EQ(report->albumID + report->storeID, QString()) << text;
    }
    EXPECT_EQ(parseScriptText(u"T||||||||||||||-0.5")->record.isPlaying, false);
}

TEST(PlayerReportTest, TakesOnlyTheRightTypesFromADictionary)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const QVariantMap wrong{{mediaInfo::title, q("T")},
                            {mediaInfo::artist, 7},
                            {mediaInfo::duration, q("200")},
                            {mediaInfo::elapsedTime, nan},
                            {mediaInfo::bundleIdentifier, QByteArray("app")},
                            {mediaInfo::storeIdentifier, q("12")},
                            {mediaInfo::albumStoreIdentifier, -1},
                            {mediaInfo::playbackRate, true},
                            {mediaInfo::artworkData, q("data")},
                            {mediaInfo::artworkImage, QImage()}};
    const auto report = parseMediaInfo(wrong);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->record, NowPlayingInfo{.title = q("T")});
    EXPECT_EQ(report->albumID + report->storeID + q(report->artworkData), QString());
    EXPECT_FALSE(parseMediaInfo({{mediaInfo::title, QString()}}));
    EXPECT_FALSE(parseMediaInfo({{mediaInfo::title, 5}}));
    const auto numbers = parseMediaInfo({{mediaInfo::title, q("T")},
                                         {mediaInfo::duration, 200},
                                         {mediaInfo::playbackRate, 0},
                                         {mediaInfo::albumStoreIdentifier, qint64{1} << 40}});
    EXPECT_EQ(numbers->record.duration, 200.0);
    EXPECT_EQ(numbers->record.isPlaying, false);
    EXPECT_EQ(numbers->albumID, q("1099511627776"));
}

TEST(BrowsersTest, AreKnownByIdentifierAndName)
{
    const std::pair<const char *, const char *> cases[] = {
        {"Google Chrome", "com.google.Chrome"},
        {"org.webkit.MiniBrowser", "com.apple.Safari"},
        {"Brave Browser", "com.brave.Browser"},
        {"com.microsoft.edgemac", "com.microsoft.edgemac"},
        {"Microsoft Edge", "com.microsoft.edgemac"},
        {"Arc", "company.thebrowser.Browser"},
        {"VIVALDI", "com.vivaldi.Vivaldi"},
        {"opera", "com.operasoftware.Opera"},
        {"org.mozilla.firefox", "org.mozilla.firefox"},
        {"org.chromium.Chromium", "org.chromium.Chromium"},
        {"org.example.Player", "org.example.Player"},
    };
    for (const auto &[application, bundleID] : cases)
        EXPECT_EQ(browserBundleID(q(application)), q(bundleID)) << application;
    EXPECT_TRUE(isBrowser(q("com.kagi.kagimacOS.Orion")));
    EXPECT_FALSE(isBrowser(q("org.example.Player")));
}

TEST(BrowserTabsTest, FindVideos)
{
    const std::pair<const char *, const char *> addresses[] = {
        {"https://www.youtube.com/watch?list=x&v=abc_-123XYZ", "abc_-123XYZ"},
        {"https://music.youtube.com/watch?v=id", "id"},
        {"https://youtu.be/id?t=5", "id"},
        {"https://youtu.be/", ""},
        {"https://www.youtube.com/", ""},
        {"https://www.youtube.com/watch?v=../../x", ""},
        {"https://youtu.be/a/b", ""},
        {"https://notyoutube.com/watch?v=id", ""},
        {"https://youtube.com.example.org/watch?v=id", ""},
        {"https://example.org/?u=youtube.com&v=id", ""},
        {"about:blank", ""},
    };
    for (const auto &[address, id] : addresses)
        EXPECT_EQ(videoIdentifier(q(address)), q(id)) << address;
    const std::pair<const char *, const char *> titles[] = {{"Song - YouTube Music", "Song"},
                                                            {"(12) Film - YouTube", "Film"},
                                                            {"(2) A (1)", "A (1)"},
                                                            {" - YouTube", ""},
                                                            {"YouTube", "YouTube"}};
    for (const auto &[tab, title] : titles)
        EXPECT_EQ(videoTitle(q(tab)), q(title)) << tab;
}

TEST(BrowserTabsTest, ElectOne)
{
    const QString mail = q("https://mail|~|Mail\n");
    const QString a = q("https://youtu.be/aa|~|A - YouTube\n");
    const QString b = q("https://youtu.be/bb|~|B - YouTube\n");
    const struct {
        QString text;
        const char *shown;
        const char *elected;
    } cases[] = {
        {a + b + a, "https://youtu.be/bb", "aa"}, // the front tab
        {mail + a + b, "https://youtu.be/bb", "bb"},
        {mail + a + b, "", "aa"},
        {q("|~|A\nhttps://youtu.be/cc|~|x|~|y\nhttps://youtu.be/dd\n") + b, "", "bb"},
        {q("https://youtu.be/ee|~| - YouTube\n"), "", ""}, // nothing to show
        {QString(), "", ""},
    };
    for (const auto &[text, shown, elected] : cases) {
        const auto tab = electVideoTab(videoTabs(parseTabs(text)), q(shown));
        EXPECT_EQ(tab ? tab->videoID : QString(), q(elected)) << qPrintable(text);
    }
    const QString text = mail + a + b;
    EXPECT_EQ(videoTabTitled(videoTabs(parseTabs(text)), q("B"))->videoID, q("bb"));
    EXPECT_FALSE(videoTabTitled(videoTabs(parseTabs(text)), q("C")));
}

TEST(ArtworkAddressesTest, AreBuiltAndRead)
{
    const auto music = [](const char *app, const char *store, const char *album) {
        return appleMusicPage(q(app), q(store), q(album)).value_or(q("none")).toStdString();
    };
    EXPECT_EQ(music("com.apple.Music", "1", "2"), "https://music.apple.com/us/song/1");
    EXPECT_EQ(music("com.apple.iTunes", "", "2"), "https://music.apple.com/us/album/2");
    EXPECT_EQ(music("com.apple.podcasts", "", ""), "none");
    EXPECT_EQ(music("org.example.Player", "1", "2"), "none");

    EXPECT_EQ(storeLookupUrl(QUrl(q("https://h/base/")), q("7")).toString(),
              q("https://h/base/lookup?id=7&entity=album&limit=1"));
    EXPECT_EQ(
        storeArtworkUrl("\n\n{\"results\":[{\"artworkUrl100\":\"https://h/100x100bb.jpg\"}]}"),
        q("https://h/600x600bb.jpg"));
    EXPECT_EQ(storeArtworkUrl("{\"results\":[{\"artworkUrl100\":\"https://h/100x100-75.jpg\"}]}"),
              q("https://h/600x600-75.jpg"));
    for (const char *reply : {"", "{", "[]", "{\"results\":{}}", "{\"results\":[]}",
                              "{\"results\":[7]}", "{\"results\":[{\"artworkUrl100\":5}]}"})
        EXPECT_EQ(storeArtworkUrl(reply), QString()) << reply;
    EXPECT_EQ(securePictureUrl(q("http://h/a"), false).toString(), q("https://h/a"));
    EXPECT_EQ(securePictureUrl(q("http://127.0.0.1/a"), true).toString(), q("http://127.0.0.1/a"));

    EXPECT_EQ(spotifyPictureUrl(q("https://open.spotify.com/image/ab")).toString(),
              q("https://i.scdn.co/image/ab"));
    const std::pair<const char *, const char *> links[] = {
        {"spotify:track:a1", "https://open.spotify.com/track/a1"},
        {"https://open.spotify.com/episode/b2?si=x", "https://open.spotify.com/episode/b2"},
        {"spotify:local:a:b:c:1", "none"},
        {"spotify:track:a/../b", "none"},
        {"javascript:alert(1)", "none"},
    };
    for (const auto &[link, page] : links)
        EXPECT_EQ(spotifyPage(q(link)).value_or(q("none")), q(page)) << link;
}

TEST(LookupPausesTest, GrowWithEveryFailure)
{
    LookupPauses pauses;
    const Instant start{1h};
    int asked = 0;
    for (Duration time = 0s; time <= 300s; time += 1s) {
        if (!pauses.mayAsk(q("T"), start + time))
            continue;
        ++asked;
        pauses.failed(q("T"), start + time);
    }
    EXPECT_EQ(asked, 8);
    EXPECT_TRUE(pauses.mayAsk(q("other"), start));
    for (int i = 0; i < 20; ++i)
        pauses.failed(q("T"), start);
    EXPECT_TRUE(pauses.mayAsk(q("T"), start + 10min));
}

} // namespace

} // namespace quillmere
