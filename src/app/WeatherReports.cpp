#include "app/WeatherReports.h"

namespace quillmere {

namespace {

WeatherTools withLocation(const WeatherTools &tools, LocationManager &location)
{
    return {tools.runLoop,    location,       tools.geocoder,
            tools.httpClient, tools.keychain, tools.reachability};
}

} // namespace

WeatherReports::WeatherReports(const WeatherTools &tools, UserDefaults &localDefaults,
                               SettingsStore &settings, HUDManager &hudManager)
    : place_(tools.runLoop, localDefaults, tools.locationManager)
    , service_(withLocation(tools, place_))
    , announcer_(settings, hudManager)
    , search_(tools.httpClient)
{
    service_.onWeatherUpdate = [this](const WeatherData &weather) { updated(weather); };
}

void WeatherReports::updated(const WeatherData &weather)
{
    if (isOnShow && isOnShow())
        announcer_.markSeen(weather);
    else if (!isSuppressed || !isSuppressed())
        announcer_.announce(weather);
}

} // namespace quillmere
