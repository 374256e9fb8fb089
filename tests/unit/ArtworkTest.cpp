#include "support/NowPlayingFixture.h"

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray storeReply =
    "\n\n{\"results\":[{\"artworkUrl100\":\"http://is1-ssl.mzstatic.com/a/100x100bb.jpg\"}]}";

class ArtworkTest : public NowPlayingFixture
{
protected:
    /// One poll; what it delivers is delivered_, null if nothing was yet.
    void fetch()
    {
        delivered_.reset();
        service->fetch([this](const std::optional<NowPlayingInfo> &info) { delivered_ = info; });
        answer();
    }

    int artworkWidth() const
    {
        return delivered_ && delivered_->artwork ? delivered_->artwork->width() : 0;
    }
    QString link() const
    {
        return delivered_ ? delivered_->contentURL.value_or(QString()) : QString();
    }

    void respond(int status, const QByteArray &body)
    {
        ASSERT_TRUE(http.answer(HttpResponse{status, {}, body}));
        answer();
    }

    QString asked() const
    {
        return http.requests.empty() ? QString() : http.requests.back().url.toString();
    }

    void from(const char *bundleID)
    {
        media.info.insert(mediaInfo::bundleIdentifier, QString::fromLatin1(bundleID));
    }

    void say(const char *question, const QByteArray &output)
    {
        scripts.answers[QString::fromLatin1(question)] = {true, true, output, {}};
    }

    std::optional<NowPlayingInfo> delivered_;
};

TEST_F(ArtworkTest, ThePlayersOwnComesFirstAndIsRemembered)
{
    media.info = track(QStringLiteral("Song"));
    from("com.google.Chrome");
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    QImage image(30, 30, QImage::Format_RGB32);
    media.info.insert(mediaInfo::artworkImage, image);
    media.info.insert(mediaInfo::artworkData, picture(40));
    fetch();
    EXPECT_EQ(artworkWidth(), 40);
    media.info.remove(mediaInfo::artworkImage);
    media.info.remove(mediaInfo::artworkData);
    fetch();
    EXPECT_EQ(artworkWidth(), 40) << "by title";

    media.info.insert(mediaInfo::title, QStringLiteral("Broken"));
    media.info.insert(mediaInfo::artworkImage, image);
    media.info.insert(mediaInfo::artworkData, picture(40).chopped(60));
    console.take();
    for (int i = 0; i < 3; ++i) {
        fetch();
        EXPECT_EQ(artworkWidth(), 30);
    }
    EXPECT_EQ(console.take().filter(QStringLiteral("no usable picture")).size(), 1);
    EXPECT_THAT(http.requests, IsEmpty());
    EXPECT_THAT(scripts.calls, IsEmpty());
}

TEST_F(ArtworkTest, TheStoreKnowsAlbums)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    from("com.apple.Music");
    fetch();
    EXPECT_FALSE(delivered_);
    EXPECT_EQ(asked(), QStringLiteral("https://itunes.apple.com/lookup?id=7&entity=album&limit=1"));
    respond(200, storeReply);
    EXPECT_EQ(asked(), QStringLiteral("https://is1-ssl.mzstatic.com/a/600x600bb.jpg"));
    EXPECT_EQ(http.requests.back().responseLimit, 10'000'000);
    runLoop.advance(400ms);
    respond(200, picture(60));
    EXPECT_EQ(artworkWidth(), 60);
    EXPECT_EQ(link(), QStringLiteral("https://music.apple.com/us/album/7"));
    EXPECT_NEAR(*delivered_->elapsedTime, 12.745, 1e-6) << "the track went on meanwhile";
    EXPECT_THAT(console.take(),
                ElementsAre(QStringLiteral("[Quillmere] Fetching iTunes artwork for adamId=7"),
                            QStringLiteral("[Quillmere] iTunes artwork URL: "
                                           "http://is1-ssl.mzstatic.com/a/600x600bb.jpg"),
                            QStringLiteral("[Quillmere] MediaRemote: \"Song\"")));
    fetch();
    EXPECT_EQ(artworkWidth(), 60);
    EXPECT_EQ(http.requests.size(), 2U);
}

TEST_F(ArtworkTest, FailuresLeaveARecordWithoutArtworkAndAreNotHammeredAt)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    const std::pair<int, QByteArray> failures[] = {{403, storeReply}, {200, "{}"}, {200, "<html>"}};
    for (const auto &[status, body] : failures) {
        runLoop.advance(10min);
        fetch();
        console.take();
        respond(status, body);
        ASSERT_TRUE(delivered_);
        EXPECT_EQ(artworkWidth(), 0);
        EXPECT_TRUE(console.take().contains(
            QStringLiteral("[Quillmere] iTunes lookup failed for adamId=7")));
        EXPECT_EQ(http.waiting(), 0U);
    }
    const auto before = http.requests.size();
    fetch();
    EXPECT_TRUE(delivered_);
    EXPECT_EQ(http.requests.size(), before);
    runLoop.advance(10min);
    fetch();
    EXPECT_TRUE(http.answer(tl::unexpected(HttpError{HttpError::Kind::TimedOut, {}})));
    runLoop.advance(10min);
    fetch();
    respond(200, storeReply);
    respond(404, picture(60));
    EXPECT_EQ(artworkWidth(), 0) << "a placeholder";
}

TEST_F(ArtworkTest, SpotifyIsAskedForItsOwn)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    from("com.spotify.client");
    say("spotify-artwork", "https://open.spotify.com/image/ab");
    say("spotify-url", "spotify:track:xyz");
    fetch();
    respond(404, {}); // the store does not know it
    EXPECT_EQ(asked(), QStringLiteral("https://i.scdn.co/image/ab"));
    respond(200, picture(64));
    EXPECT_EQ(artworkWidth(), 64);
    fetch();
    EXPECT_EQ(link(), QStringLiteral("https://open.spotify.com/track/xyz")) << "remembered";
    EXPECT_THAT(scripts.calls,
                ElementsAre(QStringLiteral("spotify-artwork"), QStringLiteral("spotify-url")));
    EXPECT_TRUE(console.take().contains(
        QStringLiteral("[Quillmere] Spotify artwork URL: https://open.spotify.com/image/ab")));

    media.info = track(QStringLiteral("No artwork"));
    from("com.spotify.client");
    say("spotify-artwork", "");
    fetch();
    EXPECT_EQ(link(), QStringLiteral("https://open.spotify.com/track/xyz"));
    EXPECT_EQ(http.waiting(), 0U);
}

TEST_F(ArtworkTest, BrowsersShowVideos)
{
    applications.list = {QStringLiteral("com.google.Chrome")};
    media.info = track(QStringLiteral("Film"));
    from("org.mozilla.firefox");
    say("front-tab org.mozilla.firefox", "https://mail/");
    say("browser-tabs org.mozilla.firefox", "https://mail|~|Mail\nhttps://youtu.be/aa|~|A - "
                                            "YouTube\nhttps://youtu.be/bb|~|Film - YouTube");
    fetch();
    EXPECT_THAT(scripts.calls, ElementsAre(QStringLiteral("front-tab org.mozilla.firefox"),
                                           QStringLiteral("front-tab com.google.Chrome"),
                                           QStringLiteral("browser-tabs org.mozilla.firefox")));
    EXPECT_TRUE(
        console.take().contains(QStringLiteral("[Quillmere] YouTube thumbnail for videoID=bb")));
    EXPECT_EQ(asked(), QStringLiteral("https://i.ytimg.com/vi/bb/maxresdefault.jpg"));
    respond(200, picture(120)); // the grey one
    EXPECT_EQ(asked(), QStringLiteral("https://i.ytimg.com/vi/bb/hqdefault.jpg"));
    respond(200, picture(480, 360));
    EXPECT_EQ(artworkWidth(), 480);
    EXPECT_EQ(link(), QStringLiteral("https://youtu.be/bb"));

    media.info = track(QStringLiteral("Other"));
    from("com.google.Chrome");
    say("front-tab com.google.Chrome", "https://www.youtube.com/watch?v=cc");
    fetch();
    respond(404, picture(160));
    respond(200, picture(120));
    ASSERT_TRUE(delivered_);
    EXPECT_EQ(artworkWidth(), 0) << "neither is there";
}

TEST_F(ArtworkTest, ASlowServerDelaysItsArtworkOnly)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    fetch();
    for (int i = 0; i < 5; ++i) {
        fetch();
        EXPECT_EQ(delivered_->title, QStringLiteral("Song"));
        EXPECT_EQ(artworkWidth(), 0);
    }
    EXPECT_EQ(http.requests.size(), 1U) << "never two at once";
    media.info.insert(mediaInfo::title, QStringLiteral("Next"));
    media.info.remove(mediaInfo::albumStoreIdentifier);
    fetch();
    EXPECT_EQ(delivered_->title, QStringLiteral("Next"));
    EXPECT_EQ(http.waiting(), 0U) << "nobody waits for the last track's artwork";
}

TEST_F(ArtworkTest, ALateAnswerDoesNotReplaceALaterOne)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    poller->poll();
    answer();
    media.info.insert(mediaInfo::duration, 100.0);
    poller->poll();
    answer();
    EXPECT_EQ(hud.currentNowPlaying()->mediaRemaining, QStringLiteral("-1:27"));
    respond(200, storeReply);
    respond(200, picture(60));
    EXPECT_EQ(hud.currentNowPlaying()->mediaRemaining, QStringLiteral("-1:27"));
    poller->poll();
    answer();
    EXPECT_EQ(hud.currentNowPlaying()->artworkImage->width(), 60);
}

TEST_F(ArtworkTest, NothingIsHeardOfACancelledSearch)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::albumStoreIdentifier, 7);
    for (int replies = 0; replies < 3; ++replies) {
        runLoop.advance(10min);
        fetch();
        if (replies > 0)
            respond(200, storeReply);
        if (replies > 1) { // the picture is being decoded
            ASSERT_TRUE(http.answer(HttpResponse{200, {}, picture(60)}));
        }
        service->cancel();
        answer();
        EXPECT_EQ(http.waiting(), 0U);
        EXPECT_FALSE(delivered_);
    }
}

} // namespace

} // namespace quillmere
