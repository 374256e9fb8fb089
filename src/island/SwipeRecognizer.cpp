#include "island/SwipeRecognizer.h"

#include <cmath>

namespace quillmere {

int SwipeRecognizer::feed(const ScrollEvent &event, Instant now)
{
    const bool vertical = std::abs(event.deltaY) > std::abs(event.deltaX);
    if (!vertical || !std::isfinite(event.deltaY))
        return 0;
    const bool turnedRound = std::signbit(event.deltaY) != std::signbit(way_);
    if (!isGoingOn(now) || turnedRound) {
        way_ = 0;
        recognized_ = false;
    }
    last_ = now;
    way_ += event.deltaY;
    if (recognized_ || std::abs(way_) < threshold)
        return 0;
    recognized_ = true;
    return way_ > 0 ? 1 : -1;
}

} // namespace quillmere
