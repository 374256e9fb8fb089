#include "app/MediaPlayback.h"

#include "island/HUDManager.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"

namespace quillmere {

MediaPlayback::MediaPlayback(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                             IslandDebugLogger &logger)
    : hudManager_(hudManager)
    , service_(platform.runLoop, platform.mediaRemote, platform.scriptRunner,
               platform.runningApplications, platform.httpClient)
    , poller_({platform.runLoop, settings, platform.notificationCenter, hudManager, logger,
               service_, platform.scriptRunner, platform.runningApplications,
               platform.audioStreams})
    , pauseObserver_(platform.notificationCenter.observe(
          mediaEvents::isPlayingDidChange,
          [this](const QVariantMap &payload) { playingChanged(payload); }))
    , playModeObserver_(platform.notificationCenter.observe(mediaEvents::playModeDidChange,
                                                            [this](const QVariantMap &) {
                                                                if (onPlayModeChanged)
                                                                    onPlayModeChanged();
                                                            }))
{
}

/// The polls take a second one to believe in a pause; until then the playhead would run on.
void MediaPlayback::playingChanged(const QVariantMap &payload)
{
    const auto &track = hudManager_.currentNowPlaying();
    const bool isPaused = !payload.value(mediaEvents::isPlaying, true).toBool();
    if (isPaused && track && track->isPlaying.value_or(true) && !track->isBrowserFallback)
        freeze(*track);
}

void MediaPlayback::togglePlayPause()
{
    const auto &track = hudManager_.currentNowPlaying();
    const bool pauses = track && track->isPlaying.value_or(true);
    if (service_.togglePlayPause() && pauses)
        freeze(*track);
}

void MediaPlayback::freeze(HUDContent track)
{
    track.isPlaying = false;
    hudManager_.freezePlayhead(std::move(track));
}

void MediaPlayback::nextTrack()
{
    service_.nextTrack();
}

void MediaPlayback::previousTrack()
{
    service_.previousTrack();
}

void MediaPlayback::seek(double fraction)
{
    service_.seek(fraction);
}

} // namespace quillmere
