#pragma once

#include "platform/Geocoder.h"
#include "platform/ScriptRunner.h"

namespace quillmere {

/// Asks the helper program that knows the cities of the world, so no request leaves the machine.
/// Main thread only.
class HelperGeocoder : public Geocoder
{
public:
    explicit HelperGeocoder(ScriptRunner &scripts)
        : scripts_(scripts)
    {
    }

    Task reverseGeocode(double latitude, double longitude,
                        std::function<void(const std::optional<Placemark> &)> done) override;

private:
    ScriptRunner &scripts_;
};

} // namespace quillmere
