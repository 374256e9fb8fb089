#pragma once

namespace quillmere {

/// The waveform that stands for music: made up from slow waves, not heard. Listening to what plays
/// would take the user's sound and a good part of a processor for a few bars.
///
/// Heights are shares of the whole, 0..1.

/// Of a bar at a time of playing, in seconds. The bars move out of step and never repeat visibly.
double playingHeight(int bar, double seconds);

/// Of a bar while all stand still though music plays.
double stillHeight(int bar);

/// Of a bar while nothing plays.
double restingHeight(int bar);

} // namespace quillmere
