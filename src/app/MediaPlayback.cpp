#include "app/MediaPlayback.h"

#include "island/HUDManager.h"
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
{
}

void MediaPlayback::togglePlayPause()
{
    const auto &track = hudManager_.currentNowPlaying();
    const bool pauses = track && track->isPlaying.value_or(true);
    if (!service_.togglePlayPause() || !pauses)
        return;
    HUDContent paused = *track;
    paused.isPlaying = false;
    hudManager_.freezePlayhead(std::move(paused));
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
