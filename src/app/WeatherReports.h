#pragma once

#include "weather/PlaceSearch.h"
#include "weather/TypedPlace.h"
#include "weather/WeatherAnnouncer.h"
#include "weather/WeatherService.h"

namespace quillmere {

/// The weather where the user is: found, kept fresh, announced. Main thread only.
class WeatherReports
{
public:
    /// The location in `tools` is the machine's.
    WeatherReports(const WeatherTools &tools, UserDefaults &localDefaults, SettingsStore &settings,
                   HUDManager &hudManager);

    /// While it answers true nothing is announced.
    std::function<bool()> isSuppressed;
    /// While it answers true the user sees the weather anyway.
    std::function<bool()> isOnShow;

    void start() { service_.requestLocationIfNeeded(); }
    void stop() { service_.stop(); }

    WeatherService &service() { return service_; }
    TypedPlace &place() { return place_; }
    PlaceSearch &search() { return search_; }

private:
    void updated(const WeatherData &weather);

    TypedPlace place_;
    WeatherService service_;
    WeatherAnnouncer announcer_;
    PlaceSearch search_;
};

} // namespace quillmere
