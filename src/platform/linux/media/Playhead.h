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
