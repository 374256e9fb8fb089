#pragma once

#include <QLatin1StringView>

/// Names of the Media Player Remote Interfacing Specification.
namespace quillmere::mpris {

inline constexpr QLatin1StringView busNamespace{"org.mpris.MediaPlayer2"};
inline constexpr QLatin1StringView objectPath{"/org/mpris/MediaPlayer2"};
inline constexpr QLatin1StringView applicationInterface{"org.mpris.MediaPlayer2"};
inline constexpr QLatin1StringView playerInterface{"org.mpris.MediaPlayer2.Player"};

} // namespace quillmere::mpris
