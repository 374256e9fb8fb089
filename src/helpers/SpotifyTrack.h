#pragma once

#include <string>

namespace quillmere {

/// A text of the metadata of Spotify's current track, by its MPRIS key; empty while Spotify does
/// not run, is frozen or has none.
std::string spotifyTrack(const std::string &key);

/// Prints it, if there is any.
int printSpotifyTrack(const std::string &key);

} // namespace quillmere
