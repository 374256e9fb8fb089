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

/// Now playing on fakes of everything it asks.
class NowPlayingFixture : public testing::Test
{
protected:
    NowPlayingFixture()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("quillmere.media=true"));
        logger.setEnabled(true);
        logger.setEnabledCategories({IslandDebugLogger::Category::Poller});
    }

    /// Lets everybody answer who was asked; http waits for the test.
    void answer()
    {
        do {
            runLoop.settle();
            media.answer();
        } while (scripts.answerOne() || streams.answerOne());
        runLoop.settle();
    }

    /// Time passes, with answers every 10 ms.
    void advance(Duration span)
    {
        const Instant end = runLoop.now() + span;
        while (runLoop.now() < end) {
            runLoop.advance(std::min<Duration>(end - runLoop.now(), std::chrono::milliseconds(10)));
            answer();
        }
    }

    /// A player's track.
    static QVariantMap track(const QString &title, double rate = 1, double duration = 200)
    {
        return {{mediaInfo::title, title},
                {mediaInfo::duration, duration},
                {mediaInfo::elapsedTime, 12.345},
                {mediaInfo::bundleIdentifier, QStringLiteral("org.example.Player")},
                {mediaInfo::playbackRate, rate}};
    }

    static QByteArray picture(int width, int height = 90)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray data;
        QBuffer buffer(&data);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return data;
    }

    /// The messages in the debug log since the last call.
    QStringList debugLines()
    {
        logger.drain();
        QFile file(logger.logFile());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        file.seek(read_);
        const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        read_ = file.pos();
        QStringList messages;
        for (const QString &line : lines) {
            static const QRegularExpression form(
                QStringLiteral("\\[POLLER\\] \\[\\w+:\\d+\\] (.*)"));
            if (const auto match = form.match(line); match.hasMatch())
                messages.append(match.captured(1));
        }
        return messages;
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
    FakeAudioStreams streams;
    FakeHttpClient http;
    std::optional<NowPlayingArtworkService> service{std::in_place, runLoop,      media,
                                                    scripts,       applications, http};
    std::optional<NowPlayingPoller> poller{
        NowPlayingPoller::Services{runLoop, fixture.settings, fixture.notifications, hud, logger,
                                   *service, scripts, applications, streams}};

private:
    qint64 read_ = 0;
};

} // namespace quillmere
