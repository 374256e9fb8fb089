#include "support/NowPlayingFixture.h"

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString chrome = QStringLiteral("com.google.Chrome");

class NowPlayingPollerTest : public NowPlayingFixture
{
protected:
    void change(QLatin1StringView name = mediaEvents::infoDidChange)
    {
        fixture.notifications.post(name);
    }

    /// Chrome plays the video, and says so only in its tabs.
    void openVideo()
    {
        applications.list = {QStringLiteral("org.example.Editor"), chrome};
        streams.playing = {chrome};
        scripts.answers[u"browser-tabs " + chrome] = {
            true, true, "https://youtu.be/id|~|Film - YouTube\n", "careful"};
    }

    QString shown() const
    {
        return hud.currentNowPlaying() ? hud.currentNowPlaying()->title : QString();
    }
};

TEST_F(NowPlayingPollerTest, AsksEverySecondOnceStarted)
{
    poller->start();
    poller->start();
    advance(700ms);
    EXPECT_EQ(media.queries, 0);
    advance(150ms);
    EXPECT_EQ(media.queries, 1);
    advance(3s);
    EXPECT_EQ(media.queries, 4);
    poller->stop();
    change();
    advance(3s);
    EXPECT_EQ(media.queries, 4);
    EXPECT_EQ(media.registrations, 1);

    poller->start();
    fixture.settings.showMediaHUD.set(false);
    for (int i = 0; i < 10; ++i) {
        change();
        advance(500ms);
    }
    EXPECT_EQ(media.queries, 4);
}

TEST_F(NowPlayingPollerTest, AChangeIsAskedAboutOnceItSettles)
{
    for (const auto name : {mediaEvents::infoDidChange, mediaEvents::applicationDidChange,
                            mediaEvents::isPlayingDidChange, mediaEvents::infoChanged,
                            mediaEvents::applicationChanged}) {
        poller->start();
        advance(810ms);
        const int before = media.queries;
        change(name); // too soon after a poll: the next one will see it
        advance(160ms);
        EXPECT_EQ(media.queries, before) << name.latin1();
        poller->stop(); // without the timer's polls in between
        poller->start();
        poller->poll();
        answer();
        advance(450ms);
        change(name);
        advance(100ms);
        change(name);
        EXPECT_EQ(media.queries, before + 1);
        advance(60ms);
        EXPECT_EQ(media.queries, before + 2) << name.latin1();
        advance(150ms);
        EXPECT_EQ(media.queries, before + 2) << name.latin1();
        poller->stop();
    }
}

TEST_F(NowPlayingPollerTest, AStormOfChangesIsABoundedNumberOfQueries)
{
    poller->start();
    for (int i = 0; i < 10'000; ++i) {
        change();
        runLoop.advance(1ms);
        answer();
    }
    EXPECT_LE(media.queries, 10 + 25);
    EXPECT_GE(media.queries, 15);
}

TEST_F(NowPlayingPollerTest, RecordsGoToTheIslandAndTheLog)
{
    media.info = track(QStringLiteral("Song"));
    media.info.insert(mediaInfo::artist, QStringLiteral("Artist"));
    poller->start();
    advance(810ms);
    ASSERT_TRUE(hud.currentNowPlaying());
    EXPECT_EQ(hud.currentNowPlaying()->subtitle, QStringLiteral("Artist"));
    EXPECT_EQ(hud.currentNowPlaying()->bundleID, QStringLiteral("org.example.Player"));
    EXPECT_EQ(hud.currentNowPlaying()->mediaElapsed, QStringLiteral("0:12"));
    EXPECT_EQ(hud.currentNowPlaying()->isPlaying, true);

    media.info = track(QStringLiteral("Song"), 0, 60);
    media.info.insert(mediaInfo::elapsedTime, -5.0);
    advance(1s);
    media.info.remove(mediaInfo::duration);
    media.info.remove(mediaInfo::playbackRate);
    advance(1s);
    EXPECT_EQ(shown(), QStringLiteral("Song"));
    EXPECT_FALSE(hud.currentNowPlaying()->mediaProgress);
    EXPECT_FALSE(hud.currentNowPlaying()->mediaElapsed);
    EXPECT_FALSE(hud.currentNowPlaying()->isPlaying);
    EXPECT_THAT(debugLines(),
                ElementsAre(QStringLiteral("title=\"Song\" elapsed=12.35 dur=200.00 playing=true"),
                            QStringLiteral("title=\"Song\" elapsed=0.00 dur=60.00 playing=false"),
                            QStringLiteral("title=\"Song\" NO_DURATION — direct set")));
    EXPECT_THAT(console.take(),
                Contains(QStringLiteral("[Quillmere] MediaRemote: \"Song\"")).Times(3));
}

TEST_F(NowPlayingPollerTest, WhatStoppedIsClearedAfterAWhile)
{
    media.info = track(QStringLiteral("Song"), 0);
    poller->start();
    advance(10s);
    EXPECT_EQ(shown(), QStringLiteral("Song")) << "paused stays";
    EXPECT_EQ(poller->electedInactivePolls(), 11);
    media.info.clear();
    advance(2s);
    EXPECT_EQ(shown(), QStringLiteral("Song"));
    advance(2s);
    EXPECT_FALSE(hud.currentNowPlaying());

    fixture.settings.nowPlayingIdleDuration.set(0.1);
    media.info = track(QStringLiteral("Next"));
    advance(950ms); // shorter than the interval of the polls, yet it does not blink
    advance(50ms);
    for (int i = 0; i < 30; ++i) {
        advance(100ms);
        EXPECT_EQ(shown(), QStringLiteral("Next"));
    }
    fixture.settings.showMediaHUD.set(false);
    advance(1100ms);
    EXPECT_FALSE(hud.currentNowPlaying());
}

TEST_F(NowPlayingPollerTest, TheScriptAnswersWhereNoPlayerDoes)
{
    scripts.answers[QStringLiteral("now-playing")] = {
        true, true, "Radio||Host||||||com.example||||||1", "line 1\nline 2"};
    media.info = {{mediaInfo::title, QString()}, {mediaInfo::duration, 5.0}};
    poller->start();
    advance(1810ms);
    EXPECT_EQ(shown(), QStringLiteral("Radio"));
    const QString line =
        QStringLiteral("[Quillmere] osascript: \"Radio||Host||||||com.example||||||1\"");
    EXPECT_THAT(
        console.take(),
        ElementsAre(QStringLiteral("[Quillmere] osascript stderr: line 1 line 2"), line, line));

    media.available = false;
    poller.reset();
    service.emplace(runLoop, media, scripts, applications, http);
    const int before = media.queries;
    QString title;
    service->fetch([&title](const auto &info) { title = info->title; });
    answer();
    EXPECT_EQ(title, QStringLiteral("Radio"));
    EXPECT_EQ(media.queries, before);
    EXPECT_FALSE(service->nextTrack());
}

TEST_F(NowPlayingPollerTest, CommandsGoToThePlayer)
{
    service->seek(0.5);
    media.info = track(QStringLiteral("Song"));
    poller->poll();
    answer();
    service->togglePlayPause();
    service->nextTrack();
    service->previousTrack();
    for (const double fraction : {0.5, 7.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        service->seek(fraction);
    media.info.remove(mediaInfo::duration);
    poller->poll();
    answer();
    service->seek(0.5);
    EXPECT_THAT(media.commands, ElementsAre(2, 4, 5));
    EXPECT_THAT(media.positions, ElementsAre(100, 200, 0));
}

TEST_F(NowPlayingPollerTest, ABrowsersVideoIsFoundAndKeptAsLongAsItSounds)
{
    openVideo();
    media.info = track(QStringLiteral("Paused"), 0);
    poller->start();
    advance(900ms);
    EXPECT_FALSE(scripts.calls.contains(u"browser-tabs " + chrome)) << "one idle poll is a gap";
    advance(1s);
    ASSERT_EQ(shown(), QStringLiteral("Film"));
    EXPECT_TRUE(hud.currentNowPlaying()->isBrowserFallback);
    EXPECT_EQ(hud.currentNowPlaying()->icon, QStringLiteral("play.circle.fill"));
    EXPECT_EQ(hud.currentNowPlaying()->bundleID, chrome);
    EXPECT_EQ(hud.currentNowPlaying()->contentURL, QStringLiteral("https://youtu.be/id"));
    ASSERT_TRUE(http.answer(HttpResponse{200, {}, picture(160)}));
    answer();
    EXPECT_TRUE(hud.currentNowPlaying()->artworkImage);

    advance(9s);
    EXPECT_EQ(shown(), QStringLiteral("Film"));
    EXPECT_LE(scripts.calls.count(u"browser-tabs " + chrome), 4);
    streams.playing.clear();
    advance(1s);
    EXPECT_EQ(hud.currentNowPlaying()->isPlaying, false);
    advance(1s);
    EXPECT_EQ(shown(), QStringLiteral("Paused"));

    streams.playing = {chrome};
    advance(4s);
    media.info = track(QStringLiteral("Song"));
    advance(1s);
    EXPECT_EQ(shown(), QStringLiteral("Song"));
    EXPECT_THAT(debugLines().filter(QStringLiteral("FALLBACK")),
                ElementsAre(QStringLiteral("FALLBACK showing \"Film\" from Google Chrome"),
                            QStringLiteral("FALLBACK end — browser audio stopped"),
                            QStringLiteral("FALLBACK showing \"Film\" from Google Chrome"),
                            QStringLiteral("FALLBACK end — elected item playing again")));
}

TEST_F(NowPlayingPollerTest, TabsAreAskedForSparingly)
{
    openVideo();
    scripts.answers[u"browser-tabs " + chrome] = {true, false, {}, {}};
    streams.playing.clear();
    poller->start();
    advance(10s);
    EXPECT_FALSE(scripts.calls.contains(u"browser-tabs " + chrome)) << "silent";
    streams.playing = {chrome};
    advance(12s);
    EXPECT_EQ(scripts.calls.count(u"browser-tabs " + chrome), 3) << "more than 3 s apart";
    EXPECT_THAT(
        debugLines(),
        Contains(QStringLiteral("FALLBACK no usable tab info from Google Chrome")).Times(3));
    EXPECT_FALSE(hud.currentNowPlaying());
}

TEST_F(NowPlayingPollerTest, AnswersAfterTheEndAreDropped)
{
    openVideo();
    media.info = track(QStringLiteral("Song"));
    int completed = 0;
    const auto count = [&completed](const auto &) { ++completed; };
    poller->start();
    poller->poll(count);
    poller->stop();
    answer();
    poller->poll(count);
    poller.reset();
    answer();
    EXPECT_EQ(completed, 0);
    EXPECT_FALSE(hud.currentNowPlaying());
    service->fetch(count);
    service.reset();
    answer();
    EXPECT_EQ(completed, 0);
}

} // namespace

} // namespace quillmere
