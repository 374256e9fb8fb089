#pragma once

#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "nowplaying/NowPlayingArtworkService.h"
#include "nowplaying/NowPlayingPoller.h"
#include "support/FakeHttpClient.h"
#include "support/FakeMedia.h"
#include "support/LogCapture.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace quillmere {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Now playing on fakes of everything it asks.
class NowPlayingFixture : public testing::Test
{
protected:
    NowPlayingFixture()
    {
        QLoggingCategory::setFilterRules(u"quillmere.media=true"_s);
        logger.setEnabled(true);
        play(u"Song"_s);
    }

    /// A player plays, or is paused on, a track.
    void play(const QString &title, double rate = 1)
    {
        media.info = {{mediaInfo::title, title},
                      {mediaInfo::duration, 200.0},
                      {mediaInfo::elapsedTime, 12.345},
                      {mediaInfo::bundleIdentifier, u"org.example.Player"_s},
                      {mediaInfo::playbackRate, rate}};
    }
    void say(const QString &call, const QByteArray &output, const QByteArray &errors = {})
    {
        scripts.answers[call] = {true, true, output, errors};
    }

    /// Lets everybody answer who was asked, except for servers.
    void answer()
    {
        do {
            runLoop.settle();
            media.answer();
            runLoop.settle();
        } while (scripts.answerOne());
    }

    /// Time passes, with answers every 10 ms.
    void advance(Duration span)
    {
        for (const Instant end = runLoop.now() + span; runLoop.now() < end; answer())
            runLoop.advance(10ms);
    }

    static QByteArray picture(int width, int height = 90)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImage(width, height, QImage::Format_Mono).save(&buffer, "PNG");
        return buffer.data();
    }

    /// What the poller wrote into the debug log.
    QStringList debugLines()
    {
        logger.drain();
        QFile file(logger.logFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const auto lines = QString::fromUtf8(file.readAll()).split(u'\n');
        static const QRegularExpression head(u"^.*\\[POLLER\\] \\[\\w+:\\d+\\] "_s);
        return lines.filter(head).replaceInStrings(head, QString());
    }

    QTemporaryDir dir;
    ManualRunLoop runLoop;
    SettingsFixture fixture;
    LogCapture console;
    IslandDebugLogger logger{runLoop, dir.path()};
    HUDManager hud{runLoop, fixture.settings, logger};
    FakeMediaRemote media;
    FakeScriptRunner scripts;
    FakeRunningApplications applications;
    FakeAudioStreams streams{runLoop};
    FakeHttpClient http;
    std::optional<NowPlayingArtworkService> service{std::in_place, runLoop,      media,
                                                    scripts,       applications, http};
    std::optional<NowPlayingPoller> poller{
        NowPlayingPoller::Services{runLoop, fixture.settings, fixture.notifications, hud, logger,
                                   *service, scripts, applications, streams}};
};

} // namespace quillmere
