#pragma once

namespace quillmere {

/// A scroll over the island. Positive x is towards the left, positive y away from the user.
struct ScrollEvent {
    double deltaX = 0;    ///< in points; 10 units are one notch of a wheel
    double deltaY = 0;    ///< the same
    bool precise = false; ///< from a device that measures points, a touchpad
};

} // namespace quillmere
