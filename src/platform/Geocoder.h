#pragma once

#include "platform/Task.h"

#include <QString>

#include <functional>
#include <optional>

namespace quillmere {

/// What a place is called; either may be empty.
struct Placemark {
    QString locality{}; ///< the town or city
    QString name{};     ///< of whatever is there
};

/// Finds names for coordinates. Main thread only.
class Geocoder
{
public:
    virtual ~Geocoder() = default;

    /// `done` gets the place nearest to the coordinate in degrees, or nothing; once, never from
    /// within the call. Destroying the Task gives up and `done` is not called.
    virtual Task reverseGeocode(double latitude, double longitude,
                                std::function<void(const std::optional<Placemark> &)> done) = 0;
};

} // namespace quillmere
