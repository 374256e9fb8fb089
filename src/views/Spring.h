#pragma once

namespace quillmere {

/// The motion of a value that moves like a damped mass on a spring, in closed form: no steps, so
/// the same curve at every frame rate. Times in seconds.
struct Spring {
    double response = 0.32; ///< period of the undamped swing, > 0
    double damping = 0.82;  ///< share of critical damping, between 0 and 1, both excluded
};

struct SpringState {
    double offset = 0;   ///< from the target, in units of the value
    double velocity = 0; ///< units a second
};

/// Where a spring released in `start` is after `elapsed` seconds.
SpringState springAt(const Spring &spring, const SpringState &start, double elapsed);

/// When it has come to rest: from then on it stays within `tolerance` of its target.
double settlingTime(const Spring &spring, const SpringState &start, double tolerance);

} // namespace quillmere
