#include "nowplaying/ArtworkAddresses.h"
#include "nowplaying/BrowserTabs.h"
#include "nowplaying/Browsers.h"
#include "nowplaying/PlayerReport.h"
#include "platform/MediaRemote.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;
using Pairs = std::vector<std::pair<QString, QString>>;

TEST(PlayerReportTest, TakesOnlyWhatReadsAsWhatItShouldBe)
{
    const auto all = parseScriptText(u" Song || Artist||200.5|| -3 ||app||12||34||1\n");
    ASSERT_TRUE(all);
    EXPECT_EQ(all->record,
              (NowPlayingInfo{u"Song"_s, u"Artist"_s, {}, 200.5, -3, u"app"_s, {}, true}));
    EXPECT_EQ(all->albumID + u'/' + all->storeID, u"12/34"_s);
    EXPECT_EQ(parseScriptText(u"T||||||||||||||0")->record.isPlaying, false);
    EXPECT_FALSE(parseScriptText(u""));
    EXPECT_FALSE(parseScriptText(u"  ||Artist||1"));

    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    using namespace mediaInfo;
    const QVariantMap wrong{{title, u"T"_s},
                            {artist, 7},
                            {duration, u"200"_s},
                            {elapsedTime, nan},
                            {bundleIdentifier, QByteArray("app")},
                            {storeIdentifier, u"12"_s},
                            {albumStoreIdentifier, -1},
                            {playbackRate, true},
                            {artworkData, u"x"_s},
                            {artworkImage, QImage()}};
    for (const auto &report : {parseMediaInfo(wrong), parseScriptText(u"T"),
                               parseScriptText(u"T||||0||nan||||../x||-1||"),
                               parseScriptText(u"T||||inf||x||||1 2||x||y||z")}) {
        ASSERT_TRUE(report);
        EXPECT_EQ(report->record, NowPlayingInfo{u"T"_s});
        EXPECT_TRUE(report->albumID.isEmpty() && report->storeID.isEmpty());
    }
    EXPECT_FALSE(parseMediaInfo({{title, 5}}));
    const auto numbers = parseMediaInfo({{title, u"T"_s},
                                         {duration, 200},
                                         {playbackRate, 0},
                                         {albumStoreIdentifier, qint64{1} << 40}});
    EXPECT_EQ(numbers->record, (NowPlayingInfo{u"T"_s, {}, {}, 200, {}, {}, {}, false}));
    EXPECT_EQ(numbers->albumID, u"1099511627776"_s);
}

TEST(BrowsersTest, AreKnownByIdentifierAndName)
{
    const Pairs cases{{u"Google Chrome"_s, u"com.google.Chrome"_s},
                      {u"org.webkit.Mini"_s, u"com.apple.Safari"_s},
                      {u"Brave Browser"_s, u"com.brave.Browser"_s},
                      {u"VIVALDI"_s, u"com.vivaldi.Vivaldi"_s},
                      {u"Microsoft Edge"_s, u"com.microsoft.edgemac"_s},
                      {u"opera"_s, u"com.operasoftware.Opera"_s},
                      {u"Arc"_s, u"company.thebrowser.Browser"_s},
                      {u"org.mozilla.firefox"_s, u"org.mozilla.firefox"_s},
                      {u"org.example.March"_s, u"org.example.March"_s}};
    for (const auto &[application, bundleID] : cases)
        EXPECT_EQ(browserBundleID(application), bundleID);
    EXPECT_TRUE(isBrowser(u"com.kagi.kagimacOS.Orion"_s));
    EXPECT_FALSE(isBrowser(u"org.example.Player"_s));
}

TEST(BrowserTabsTest, AreReadAndOneIsElected)
{
    const QString web = u"https://www.youtube.com"_s;
    const Pairs addresses{{web + u"/watch?list=x&v=abc_-123XYZ", u"abc_-123XYZ"_s},
                          {u"https://music.youtube.com/watch?v=id"_s, u"id"_s},
                          {u"https://youtu.be/id?t=5"_s, u"id"_s},
                          {u"https://youtu.be/"_s, {}},
                          {web, {}},
                          {web + u"/watch?v=../../x", {}},
                          {u"https://youtu.be/a/b"_s, {}},
                          {u"https://notyoutube.com/watch?v=id"_s, {}},
                          {u"https://youtube.com.example.org/watch?v=id"_s, {}},
                          {u"https://example.org/?u=youtube.com&v=id"_s, {}},
                          {u"about:blank"_s, {}}};
    for (const auto &[address, id] : addresses)
        EXPECT_EQ(videoIdentifier(address), id) << qPrintable(address);
    const Pairs titles{{u"Song - YouTube Music"_s, u"Song"_s},
                       {u"(12) Film - YouTube"_s, u"Film"_s},
                       {u"(2) A (1)"_s, u"A (1)"_s},
                       {u" - YouTube"_s, {}},
                       {u"YouTube"_s, u"YouTube"_s}};
    for (const auto &[tab, title] : titles)
        EXPECT_EQ(videoTitle(tab), title) << qPrintable(tab);

    const QString mail = u"https://mail|~|Mail\n"_s;
    const QString a = u"https://youtu.be/aa|~|A - YouTube\n"_s;
    const QString b = u"https://youtu.be/bb|~|B - YouTube\n"_s;
    const QString broken =
        u"|~|A\nhttps://youtu.be/cc|~|x|~|y\nhttps://youtu.be/dd\nhttps://youtu.be/ee|~| - YouTube\n"_s;
    const std::tuple<QString, QString, QString> cases[] = {
        {a + b + a, u"https://youtu.be/bb"_s, u"aa"_s},
        {mail + a + b, u"https://youtu.be/bb"_s, u"bb"_s},
        {mail + a + b, {}, u"aa"_s},
        {broken + b, {}, u"bb"_s},
        {broken, {}, {}}};
    for (const auto &[text, shown, elected] : cases)
        EXPECT_EQ(electVideoTab(videoTabs(parseTabs(text)), shown).value_or(VideoTab()).videoID,
                  elected)
            << qPrintable(text);
}

TEST(ArtworkAddressesTest, AreBuiltAndRead)
{
    const auto music = [](const QString &app, const QString &store, const QString &album) {
        return appleMusicPage(app, store, album).value_or(u"none"_s);
    };
    EXPECT_EQ(music(u"com.apple.Music"_s, u"1"_s, u"2"_s), u"https://music.apple.com/us/song/1"_s);
    EXPECT_EQ(music(u"com.apple.iTunes"_s, {}, u"2"_s), u"https://music.apple.com/us/album/2"_s);
    EXPECT_EQ(music(u"com.apple.podcasts"_s, {}, {}), u"none"_s);
    EXPECT_EQ(music(u"org.example.Player"_s, u"1"_s, u"2"_s), u"none"_s);

    EXPECT_EQ(storeLookupUrl(QUrl(u"https://h/base/"_s), u"7"_s).toString(),
              u"https://h/base/lookup?id=7&entity=album&limit=1"_s);
    EXPECT_EQ(storeArtworkUrl("{\"results\":[{\"artworkUrl100\":\"https://h/100x100-75.jpg\"}]}"),
              u"https://h/600x600-75.jpg"_s);
    for (const char *reply : {"", "{", "[]", "{\"results\":{}}", "{\"results\":[]}",
                              "{\"results\":[7]}", "{\"results\":[{\"artworkUrl100\":5}]}"})
        EXPECT_EQ(storeArtworkUrl(reply), QString()) << reply;

    const Pairs links{
        {u"https://open.spotify.com/episode/b2?si=x"_s, u"https://open.spotify.com/episode/b2"_s},
        {u"spotify:local:a:b:c:1"_s, u"none"_s},
        {u"spotify:track:a/../b"_s, u"none"_s},
        {u"javascript:alert(1)"_s, u"none"_s}};
    for (const auto &[link, page] : links)
        EXPECT_EQ(spotifyPage(link).value_or(u"none"_s), page);
}

} // namespace

} // namespace quillmere
