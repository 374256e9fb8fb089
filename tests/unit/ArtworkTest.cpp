#include "support/NowPlayingFixture.h"

namespace quillmere {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray storeReply =
    "\n\n{\"results\":[{\"artworkUrl100\":\"http://is1-ssl.mzstatic.com/a/100x100bb.jpg\"}]}";

class ArtworkTest : public NowPlayingFixture
{
protected:
    /// One poll of a track; what it delivers is record, absent while nothing was yet.
    void fetch(const QString &bundleID, int album = 0)
    {
        media.info.insert(mediaInfo::bundleIdentifier, bundleID);
        media.info.insert(mediaInfo::albumStoreIdentifier, album);
        record.reset();
        service->fetch([this](const std::optional<NowPlayingInfo> &info) { record = info; });
        answer();
    }
    void respond(int status, const QByteArray &body)
    {
        ASSERT_TRUE(http.answer(HttpResponse{status, {}, body}));
        answer();
    }

    /// Of the artwork delivered; 0: a record without, -1: no record.
    int width() const { return !record ? -1 : record->artwork.value_or(QImage()).width(); }
    QString asked() const { return http.requests.back().url.toString(); }

    std::optional<NowPlayingInfo> record;
};

TEST_F(ArtworkTest, ThePlayersOwnComesFirstAndIsRemembered)
{
    const QImage image(30, 30, QImage::Format_RGB32);
    media.info.insert(mediaInfo::artworkImage, image);
    media.info.insert(mediaInfo::artworkData, picture(40));
    fetch(u"com.google.Chrome"_s, 7);
    EXPECT_EQ(width(), 40);
    play(u"Song"_s);
    fetch(u"com.google.Chrome"_s, 7);
    EXPECT_EQ(width(), 40) << "by title";

    play(u"Broken"_s);
    media.info.insert(mediaInfo::artworkImage, image);
    media.info.insert(mediaInfo::artworkData, picture(40).chopped(30));
    console.take();
    for (int i = 0; i < 3; ++i) {
        fetch(u"com.google.Chrome"_s, 7);
        EXPECT_EQ(width(), 30);
    }
    EXPECT_EQ(console.take().filter(u"no usable picture"_s).size(), 1);
    EXPECT_THAT(http.requests, IsEmpty());
    EXPECT_THAT(scripts.calls, IsEmpty());
}

TEST_F(ArtworkTest, TheStoreKnowsAlbums)
{
    fetch(u"com.apple.Music"_s, 7);
    EXPECT_EQ(asked(), u"https://itunes.apple.com/lookup?id=7&entity=album&limit=1"_s);
    respond(200, storeReply);
    EXPECT_EQ(asked(), u"https://is1-ssl.mzstatic.com/a/600x600bb.jpg"_s);
    EXPECT_EQ(width(), -1);
    runLoop.advance(400ms);
    respond(200, picture(60));
    EXPECT_EQ(width(), 60);
    EXPECT_EQ(record->contentURL, u"https://music.apple.com/us/album/7"_s);
    EXPECT_NEAR(*record->elapsedTime, 12.745, 1e-6) << "the track went on meanwhile";
    EXPECT_THAT(
        console.take(),
        ElementsAre(
            u"[Quillmere] Fetching iTunes artwork for adamId=7"_s,
            u"[Quillmere] iTunes artwork URL: http://is1-ssl.mzstatic.com/a/600x600bb.jpg"_s,
            u"[Quillmere] MediaRemote: \"Song\""_s));
    fetch(u"com.apple.Music"_s, 7);
    EXPECT_EQ(width(), 60);
    EXPECT_EQ(http.requests.size(), 2U);
}

TEST_F(ArtworkTest, FailuresLeaveARecordWithoutArtworkAndAreNotHammeredAt)
{
    int asked = 0;
    for (int second = 0; second <= 300; ++second, runLoop.advance(1s)) {
        fetch(u"org.example.Player"_s, 7);
        if (http.waiting() > 0) {
            console.take();
            respond(asked % 2 ? 403 : 200, "<html>");
            ++asked;
            EXPECT_TRUE(
                console.take().contains(u"[Quillmere] iTunes lookup failed for adamId=7"_s));
        }
        EXPECT_EQ(width(), 0);
    }
    EXPECT_EQ(asked, 8);
    runLoop.advance(10min);
    fetch(u"org.example.Player"_s, 7);
    respond(200, storeReply);
    respond(404, picture(60));
    EXPECT_EQ(width(), 0) << "a placeholder";
}

TEST_F(ArtworkTest, SpotifyIsAskedForItsOwn)
{
    say(u"spotify-artwork"_s, "https://open.spotify.com/image/ab");
    say(u"spotify-url"_s, "spotify:track:xyz");
    fetch(u"com.spotify.client"_s, 7);
    respond(404, {}); // the store does not know it
    EXPECT_EQ(asked(), u"https://i.scdn.co/image/ab"_s);
    respond(200, picture(64));
    EXPECT_EQ(width(), 64);
    fetch(u"com.spotify.client"_s, 7);
    EXPECT_EQ(record->contentURL, u"https://open.spotify.com/track/xyz"_s) << "remembered";
    EXPECT_THAT(scripts.calls, ElementsAre(u"spotify-artwork"_s, u"spotify-url"_s));
    EXPECT_TRUE(console.take().contains(
        u"[Quillmere] Spotify artwork URL: https://open.spotify.com/image/ab"_s));
}

TEST_F(ArtworkTest, BrowsersShowVideos)
{
    applications.list = {u"com.google.Chrome"_s};
    say(u"front-tab org.mozilla.firefox"_s, "https://mail/");
    say(u"browser-tabs org.mozilla.firefox"_s,
        "https://mail|~|Mail\nhttps://youtu.be/aa|~|A\nhttps://youtu.be/bb|~|Song - YouTube");
    fetch(u"org.mozilla.firefox"_s);
    EXPECT_THAT(scripts.calls,
                ElementsAre(u"front-tab org.mozilla.firefox"_s, u"front-tab com.google.Chrome"_s,
                            u"browser-tabs org.mozilla.firefox"_s));
    EXPECT_TRUE(console.take().contains(u"[Quillmere] YouTube thumbnail for videoID=bb"_s));
    EXPECT_EQ(asked(), u"https://i.ytimg.com/vi/bb/maxresdefault.jpg"_s);
    respond(200, picture(120)); // the grey one
    EXPECT_EQ(asked(), u"https://i.ytimg.com/vi/bb/hqdefault.jpg"_s);
    respond(200, picture(480, 360));
    EXPECT_EQ(width(), 480);
    EXPECT_EQ(record->contentURL, u"https://youtu.be/bb"_s);

    play(u"Other"_s);
    say(u"front-tab com.google.Chrome"_s, "https://www.youtube.com/watch?v=cc");
    fetch(u"com.google.Chrome"_s);
    respond(404, picture(160));
    respond(200, picture(120));
    EXPECT_EQ(width(), 0) << "neither is there";
}

TEST_F(ArtworkTest, ASlowServerDelaysItsArtworkOnly)
{
    poller->start();
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    advance(5s);
    EXPECT_EQ(http.requests.size(), 1U) << "never two at once";
    EXPECT_EQ(hud.currentNowPlaying()->title, u"Song"_s);
    respond(200, storeReply);
    respond(200, picture(60)); // completes the first record, which is long out of date
    EXPECT_EQ(debugLines().size(), 5);
    advance(1s);
    EXPECT_EQ(hud.currentNowPlaying()->artworkImage->width(), 60);

    media.info.insert(mediaInfo::title, u"Next"_s);
    advance(1s);
    EXPECT_EQ(http.waiting(), 1U);
    play(u"Last"_s);
    advance(1s);
    EXPECT_EQ(hud.currentNowPlaying()->title, u"Last"_s);
    EXPECT_EQ(http.waiting(), 0U) << "nobody waits for what is over";
}

TEST_F(ArtworkTest, NothingIsHeardOfACancelledSearch)
{
    for (int replies = 0; replies < 3; ++replies) {
        fetch(u"org.example.Player"_s, 7);
        if (replies > 0)
            respond(200, storeReply);
        if (replies > 1) { // the picture is being decoded
            ASSERT_TRUE(http.answer(HttpResponse{200, {}, picture(60)}));
        }
        service->cancel();
        answer();
        EXPECT_EQ(http.waiting(), 0U);
        EXPECT_EQ(width(), -1);
    }
}

} // namespace

} // namespace quillmere
