#pragma once

#include "platform/Task.h"

#include <QByteArray>
#include <QLatin1StringView>
#include <QStringList>

#include <functional>

namespace quillmere {

/// The questions that programs of their own answer, in a fixed text form. Names of programs.
namespace scripts {
/// What plays: title, artist, duration, elapsed time, bundle identifier, album store identifier,
/// store identifier and playback rate, joined by "||"; empty if nothing does.
inline constexpr QLatin1StringView nowPlaying("now-playing");
/// Argument: a browser's bundle identifier. The front tab, then every tab, a line each: address,
/// "|~|", title.
inline constexpr QLatin1StringView browserTabs("browser-tabs");
/// Argument: a browser's bundle identifier. The front tab's address.
inline constexpr QLatin1StringView frontTab("front-tab");
/// The address of the current track's artwork in Spotify.
inline constexpr QLatin1StringView spotifyArtwork("spotify-artwork");
/// The address of the current track in Spotify.
inline constexpr QLatin1StringView spotifyURL("spotify-url");
/// Arguments: latitude and longitude in degrees. The nearest city, and a line below the place it
/// was found by; empty if none is near.
inline constexpr QLatin1StringView placeName("place-name");
/// How much unread mail there is, then message id, subject and sender of the newest unread one, a
/// line each; a fifth line, if there is one, tells when it arrived, in seconds since 1970. "0" if
/// there is none, or "error: " and why it cannot be told. With the argument "--source": where it
/// looks, a line for each place.
inline constexpr QLatin1StringView unreadMail("unread-mail");
} // namespace scripts

struct ScriptAnswer {
    bool hasRun = false;       ///< false: answered without running a program, or none could be run
    bool hasSucceeded = false; ///< it ended with 0 within its limits
    QByteArray output{};       ///< without white space around it; empty unless it succeeded
    QByteArray errors{};       ///< its standard error, cut to a few lines
};

/// Asks other programs by running small helper programs, each for one question: an application
/// that hangs can only hang its helper. A program of the question's name in the user's own folder
/// takes the place of ours. Main thread only.
class ScriptRunner
{
public:
    virtual ~ScriptRunner() = default;

    /// `done` gets the answer once, never from within run(); destroying the Task ends the program
    /// and `done` is not called.
    virtual Task run(QLatin1StringView question, const QStringList &arguments,
                     std::function<void(const ScriptAnswer &)> done) = 0;
};

} // namespace quillmere
