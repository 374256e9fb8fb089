#include "support/NowPlayingFixture.h"

namespace quillmere {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class NowPlayingPollerTest : public NowPlayingFixture
{
protected:
    void change(QLatin1StringView name = mediaEvents::infoDidChange)
    {
        fixture.notifications.post(name);
    }
    QString shown() const { return hud.currentNowPlaying().value_or(HUDContent()).title; }
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

    poller->start();
    fixture.settings.showMediaHUD.set(false);
    change();
    advance(5s);
    EXPECT_EQ(media.queries, 4);
    EXPECT_FALSE(hud.currentNowPlaying()) << "and what was shown goes";
}

TEST_F(NowPlayingPollerTest, AChangeIsAskedAboutOnceItSettles)
{
    using namespace mediaEvents;
    for (const auto name : {infoDidChange, applicationDidChange, isPlayingDidChange, infoChanged,
                            applicationChanged}) {
        media.queries = 0;
        poller->start(); // its own first poll comes after 0.8 s
        poller->poll();
        advance(240ms);
        change(name); // due less than 0.4 s after a poll
        advance(260ms);
        EXPECT_EQ(media.queries, 1) << name.latin1();
        change(name);
        advance(100ms);
        change(name);
        EXPECT_EQ(media.queries, 1);
        advance(160ms);
        EXPECT_EQ(media.queries, 2) << name.latin1();
        poller->stop();
    }
}

TEST_F(NowPlayingPollerTest, AChangeIsNotLostBehindOneThatCameTooSoon)
{
    poller->start();
    poller->poll();
    advance(200ms);
    change();
    advance(100ms);
    change();
    advance(140ms);
    EXPECT_EQ(media.queries, 1);
    advance(20ms);
    EXPECT_EQ(media.queries, 2);
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
    media.info.insert(mediaInfo::artist, u"Artist"_s);
    poller->start();
    advance(810ms);
    ASSERT_TRUE(hud.currentNowPlaying());
    EXPECT_EQ(hud.currentNowPlaying()->subtitle, u"Artist"_s);
    EXPECT_EQ(hud.currentNowPlaying()->bundleID, u"org.example.Player"_s);
    EXPECT_EQ(hud.currentNowPlaying()->mediaElapsed, u"0:12"_s);
    play(u"Song"_s, 0);
    media.info.insert(mediaInfo::elapsedTime, -5.0);
    advance(1s);
    media.info.remove(mediaInfo::duration);
    media.info.remove(mediaInfo::playbackRate);
    advance(1s);
    EXPECT_EQ(shown(), u"Song"_s);
    EXPECT_FALSE(hud.currentNowPlaying()->mediaProgress || hud.currentNowPlaying()->mediaElapsed);
    EXPECT_FALSE(hud.currentNowPlaying()->isPlaying);
    EXPECT_THAT(debugLines(), ElementsAre(u"title=\"Song\" elapsed=12.35 dur=200.00 playing=true"_s,
                                          u"title=\"Song\" elapsed=0.00 dur=200.00 playing=false"_s,
                                          u"title=\"Song\" NO_DURATION — direct set"_s));
    EXPECT_THAT(console.take(), Contains(u"[Quillmere] MediaRemote: \"Song\""_s).Times(3));
}

TEST_F(NowPlayingPollerTest, WhatStoppedIsClearedAfterAWhile)
{
    play(u"Song"_s, 0);
    poller->start();
    advance(10s);
    EXPECT_EQ(shown(), u"Song"_s) << "paused stays";
    EXPECT_EQ(poller->electedInactivePolls(), 11);
    media.info.clear();
    advance(2s);
    EXPECT_EQ(shown(), u"Song"_s);
    advance(2s);
    EXPECT_FALSE(hud.currentNowPlaying());

    fixture.settings.nowPlayingIdleDuration.set(0.1); // shorter than the interval of the polls
    play(u"Next"_s);
    advance(1s);
    for (int i = 0; i < 30; ++i, advance(100ms))
        EXPECT_EQ(shown(), u"Next"_s) << "does not blink";
}

TEST_F(NowPlayingPollerTest, TheScriptAnswersWhereNoPlayerDoes)
{
    say(u"now-playing"_s, "Radio||Host||||||com.example||||||1", "line 1\nline 2");
    media.info = {{mediaInfo::title, QString()}, {mediaInfo::duration, 5.0}};
    poller->start();
    advance(1810ms);
    EXPECT_EQ(shown(), u"Radio"_s);
    const QString line = u"[Quillmere] osascript: \"Radio||Host||||||com.example||||||1\""_s;
    EXPECT_THAT(console.take(),
                ElementsAre(u"[Quillmere] osascript stderr: line 1 line 2"_s, line, line));
    poller.reset();
    media.available = false;
    service.emplace(runLoop, media, scripts, applications, http);
    QString title;
    service->fetch([&title](const auto &info) { title = info->title; });
    answer();
    EXPECT_EQ(title, u"Radio"_s);
    EXPECT_FALSE(service->nextTrack());
}

TEST_F(NowPlayingPollerTest, CommandsGoToThePlayer)
{
    service->seek(0.5);
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

TEST_F(NowPlayingPollerTest, ABrowsersVideoIsShownAsLongAsItSounds)
{
    const QString chrome = u"com.google.Chrome"_s;
    const QString tabs = u"browser-tabs com.google.Chrome"_s;
    applications.list = {u"org.example.Editor"_s, u"org.mozilla.firefox"_s, chrome};
    play(u"Paused"_s, 0);
    poller->start();
    advance(10s);
    EXPECT_EQ(scripts.calls.count(tabs), 0) << "silent";
    poller->stop();
    streams.playing = {chrome};
    play(u"Song"_s);
    poller->start();
    advance(900ms);
    play(u"Paused"_s, 0);
    advance(1s);
    EXPECT_EQ(scripts.calls.count(tabs), 0) << "one idle poll is a gap";
    advance(12s);
    EXPECT_EQ(scripts.calls.count(tabs), 3) << "more than 3 s apart";
    EXPECT_EQ(shown(), u"Paused"_s);

    say(tabs, "https://youtu.be/id|~|Film - YouTube\n");
    advance(3s);
    ASSERT_EQ(shown(), u"Film"_s);
    EXPECT_TRUE(hud.currentNowPlaying()->isBrowserFallback);
    EXPECT_EQ(hud.currentNowPlaying()->icon, u"play.circle.fill"_s);
    EXPECT_EQ(hud.currentNowPlaying()->bundleID, chrome);
    EXPECT_EQ(hud.currentNowPlaying()->contentURL, u"https://youtu.be/id"_s);
    ASSERT_TRUE(http.answer(HttpResponse{200, {}, picture(160)}));
    answer();
    EXPECT_TRUE(hud.currentNowPlaying()->artworkImage);
    say(tabs, {});
    advance(9s);
    EXPECT_EQ(shown(), u"Film"_s) << "kept";
    say(tabs, "https://youtu.be/id|~|- YouTube\n");
    advance(4s);
    EXPECT_EQ(hud.currentNowPlaying()->isPlaying, true) << "its title is on its way";
    say(tabs, "https://example.org/|~|Radio\n");
    advance(5s);
    EXPECT_EQ(shown(), u"Paused"_s) << "its tab is gone";
    say(tabs, "https://youtu.be/id|~|Film - YouTube\n");
    advance(4s);
    ASSERT_EQ(shown(), u"Film"_s);
    streams.playing.clear();
    advance(1s);
    EXPECT_EQ(hud.currentNowPlaying()->isPlaying, false);
    advance(1s);
    EXPECT_EQ(shown(), u"Paused"_s);

    streams.playing = {chrome};
    say(tabs, "https://youtu.be/id|~|Film - YouTube\n");
    advance(4s);
    play(u"Song"_s);
    advance(1s);
    EXPECT_EQ(shown(), u"Song"_s);
    const QString said = console.take().join(u'\n');
    EXPECT_TRUE(said.contains(u"[Quillmere] osascript: 37 bytes"_s) &&
                !said.contains(u"youtu.be"_s));
    auto lines = debugLines().filter(u"FALLBACK"_s);
    EXPECT_EQ(lines.removeAll(u"FALLBACK no usable tab info from Google Chrome"_s), 8);
    EXPECT_THAT(lines, ElementsAre(u"FALLBACK showing \"Film\" from Google Chrome"_s,
                                   u"FALLBACK end — its tab is gone"_s,
                                   u"FALLBACK showing \"Film\" from Google Chrome"_s,
                                   u"FALLBACK end — browser audio stopped"_s,
                                   u"FALLBACK showing \"Film\" from Google Chrome"_s,
                                   u"FALLBACK end — elected item playing again"_s));
}

TEST_F(NowPlayingPollerTest, AnswersAfterTheEndAreDropped)
{
    int completed = 0;
    const auto count = [&completed](const auto &) { ++completed; };
    poller->poll(count);
    poller->stop();
    answer();
    poller->poll(count);
    poller.reset();
    answer();
    service->fetch(count);
    service.reset();
    answer();
    EXPECT_EQ(completed, 0);
    EXPECT_FALSE(hud.currentNowPlaying());
}

} // namespace

} // namespace quillmere
