#pragma once

#include "island/ScrollEvent.h"
#include "platform/Time.h"

#include <chrono>
#include <optional>

namespace quillmere {

/// Lets through one step per gesture: the first, and no more until the gesture has ended by a
/// silence or turned round. A flick over a touchpad is dozens of events, its inertia included.
class GestureGate
{
public:
    /// Events closer than this belong to one gesture.
    static constexpr Duration silence = std::chrono::milliseconds(200);

    /// An event of the gesture came, `direction` -1 or 1. True: it is the first in its direction.
    bool passes(int direction, Instant now)
    {
        const bool begins = !last_ || now - *last_ >= silence || direction != direction_;
        last_ = now;
        direction_ = direction;
        return begins;
    }

private:
    std::optional<Instant> last_;
    int direction_ = 0;
};

/// Tells vertical swipes over a touchpad from small movements. A gesture is one swipe, however
/// long it is.
class SwipeRecognizer
{
public:
    /// So far the fingers go before it is a swipe, in points.
    static constexpr double threshold = 30.0;

    /// -1 towards the user, 1 away from the user, 0 no swipe (yet, or any more).
    int feed(const ScrollEvent &event, Instant now);

    /// Whether an event now would still belong to the gesture that was fed last.
    bool isGoingOn(Instant now) const { return last_ && now - *last_ < GestureGate::silence; }

private:
    std::optional<Instant> last_;
    double way_ = 0;
    bool recognized_ = false;
};

} // namespace quillmere
