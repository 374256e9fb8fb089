#pragma once

#include "platform/Time.h"

#include <optional>

namespace quillmere {

/// Where a player is in its track, between and in spite of what it tells. A plain value.
struct Playhead {
    double position = 0; ///< s, as of `at`
    Instant at{};
    double rate = 0;             ///< seconds of the track in one second; 0 while it stands
    bool tellsFractions = false; ///< the player knows more than whole seconds
};

/// What a player has told of the length of one piece. A plain value.
struct ToldLength {
    std::optional<double> length; ///< s, as told last
    int growths = 0;
    Instant grew{};
};

/// The player has told it again.
ToldLength toldAgain(ToldLength before, std::optional<double> length, Instant now);

/// Some players tell of a stream what they have received so far: what keeps growing is no length.
std::optional<double> trustedLength(const ToldLength &told, Instant now);

/// Where it is now, within the track.
double positionAt(const Playhead &head, Instant now, std::optional<double> duration);

/// The player says that it has gone there.
Playhead jumped(Playhead head, double position, Instant now);

/// It plays on at another rate, from where it is.
Playhead atRate(const Playhead &head, double rate, Instant now, std::optional<double> duration);

/// The player has told its position when asked, or not answered. Positions that cannot be, and the
/// zero that some players tell all the time, leave the playhead going on; one in whole seconds
/// moves it no further than it has to.
Playhead heard(Playhead head, std::optional<double> told, Instant now,
               std::optional<double> duration);

} // namespace quillmere
