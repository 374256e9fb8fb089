#pragma once

#include "platform/Owner.h"

#include <QLatin1StringView>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace quillmere {

/// What a player plays again when it comes to the end.
enum class RepeatMode { Nothing, List, Track };

/// What plays, and the commands that go to its player. Main thread only.
///
/// Tells of changes by posting to the NotificationCenter under the names below as often as the
/// player does: whoever listens decides how often it wants to ask. Only isPlayingDidChange has a
/// payload.
class MediaRemote
{
public:
    enum class Command { TogglePlayPause = 2, NextTrack = 4, PreviousTrack = 5 };

    virtual ~MediaRemote() = default;

    /// False where there is no media service at all: then it cannot be asked and takes no commands.
    virtual bool isAvailable() const = 0;

    /// Begins to post changes. Once is enough.
    virtual void registerForNowPlayingNotifications() = 0;

    /// Asks the elected player. `done` gets what it said under the keys below, empty if nothing is
    /// there to play: once, never from within this call, and only while `owner` lives. Players are
    /// foreign programs: any key can be missing.
    virtual void getNowPlayingInfo(const Owner &owner,
                                   std::function<void(const QVariantMap &info)> done) = 0;

    /// Whether there was a player to send it to; not whether the player obeyed.
    virtual bool sendCommand(Command command) = 0;

    /// Moves the elected player to `seconds` into its track.
    virtual void setElapsedTime(double seconds) = 0;

    /// Whether the elected player plays in random order, and what it repeats; absent if it cannot.
    /// Told of by playModeDidChange, and without delay.
    virtual std::optional<bool> isShuffling() const = 0;
    virtual std::optional<RepeatMode> repeatMode() const = 0;

    /// Turns random order on or off. False if there is no player that has it.
    virtual bool toggleShuffle() = 0;

    /// To repeating the list, then the track, then nothing. False if there is no player that can.
    virtual bool cycleRepeat() = 0;

    /// Which players are there, whether or not they play: each name once, as the player gives it to
    /// people, in the order in which they came. Being asked, it begins to look for them; told of by
    /// playersDidChange, whoever has registered or not.
    virtual QStringList players() = 0;
};

/// The keys of what a player said, and the type of each value.
namespace mediaInfo {
inline constexpr QLatin1StringView title("kMRMediaRemoteNowPlayingInfoTitle");       ///< QString
inline constexpr QLatin1StringView artist("kMRMediaRemoteNowPlayingInfoArtist");     ///< QString
inline constexpr QLatin1StringView duration("kMRMediaRemoteNowPlayingInfoDuration"); ///< s, double
inline constexpr QLatin1StringView
    elapsedTime("kMRMediaRemoteNowPlayingInfoElapsedTime"); ///< s, double, true right now
inline constexpr QLatin1StringView
    bundleIdentifier("kMRMediaRemoteNowPlayingInfoApplicationBundleIdentifier"); ///< QString
inline constexpr QLatin1StringView
    storeIdentifier("kMRMediaRemoteNowPlayingInfoiTunesStoreIdentifier"); ///< qint64
inline constexpr QLatin1StringView
    albumStoreIdentifier("kMRMediaRemoteNowPlayingInfoAlbumiTunesStoreAdamIdentifier"); ///< qint64
inline constexpr QLatin1StringView
    playbackRate("kMRMediaRemoteNowPlayingInfoPlaybackRate"); ///< double, 0 = paused
inline constexpr QLatin1StringView
    artworkData("kMRMediaRemoteNowPlayingInfoArtworkData"); ///< QByteArray, an encoded picture
inline constexpr QLatin1StringView
    artworkImage("kMRMediaRemoteNowPlayingInfoArtworkImage"); ///< QImage, the same for each answer
} // namespace mediaInfo

/// The names under which changes are posted. The last two are what older players' bridges use.
namespace mediaEvents {
inline constexpr QLatin1StringView
    infoDidChange("kMRMediaRemoteNowPlayingInfoDidChangeNotification");
inline constexpr QLatin1StringView
    applicationDidChange("kMRMediaRemoteNowPlayingApplicationDidChangeNotification");
inline constexpr QLatin1StringView
    isPlayingDidChange("kMRMediaRemoteNowPlayingApplicationIsPlayingDidChangeNotification");
/// In the payload of isPlayingDidChange: false if the player has been paused, else true or absent.
inline constexpr QLatin1StringView
    isPlaying("kMRMediaRemoteNowPlayingApplicationIsPlayingUserInfoKey");
inline constexpr QLatin1StringView playModeDidChange("QuillmerePlayModeDidChange");
inline constexpr QLatin1StringView playersDidChange("QuillmerePlayersDidChange");
inline constexpr QLatin1StringView infoChanged("com.apple.mediaremote.nowplaying.info.changed");
inline constexpr QLatin1StringView
    applicationChanged("com.apple.mediaremote.nowplaying.applicationchanged");
} // namespace mediaEvents

} // namespace quillmere
