#pragma once

#include "nowplaying/NowPlayingArtworkService.h"
#include "nowplaying/NowPlayingPoller.h"

#include <functional>
#include <optional>

namespace quillmere {

class HUDManager;
struct HUDContent;
class IslandDebugLogger;
class SettingsStore;
struct Platform;

/// What plays, and the user's hand on it. Commands without a player to take them do nothing. Main
/// thread only.
class MediaPlayback
{
public:
    MediaPlayback(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                  IslandDebugLogger &logger);

    void start() { poller_.start(); }
    void stop() { poller_.stop(); }

    /// Asks the players now.
    void refresh() { poller_.poll(); }

    /// The playhead stops at once; that the player did follows with its next answer.
    void togglePlayPause();
    void nextTrack();
    void previousTrack();

    /// Absent if the player cannot; known by the time its track is shown.
    std::optional<bool> isShuffling() const { return service_.isShuffling(); }
    std::optional<RepeatMode> repeatMode() const { return service_.repeatMode(); }
    std::function<void()> onPlayModeChanged;

    void toggleShuffle() { service_.toggleShuffle(); }
    void cycleRepeat() { service_.cycleRepeat(); }

    /// 0..1 of the track.
    void seek(double fraction);

private:
    void playingChanged(const QVariantMap &payload);
    void freeze(HUDContent track);

    HUDManager &hudManager_;
    NowPlayingArtworkService service_;
    NowPlayingPoller poller_;
    Task pauseObserver_;
    Task playModeObserver_;
};

} // namespace quillmere
