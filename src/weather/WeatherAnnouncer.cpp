#include "weather/WeatherAnnouncer.h"

#include "island/HUDManager.h"
#include "settings/SettingsStore.h"
#include "weather/WeatherHUD.h"

namespace quillmere {

void WeatherAnnouncer::announce(const WeatherData &weather)
{
    const QString key = weatherHUDKey(weather);
    if (!settings_.showWeatherHUD.get() || key == lastWeatherHUDKey_)
        return;
    const HUDContent hud = weatherHUD(weather, settings_.weatherUseFahrenheit.get());
    hudManager_.show(hud, true, durationSeconds);
    // Right after the start nothing is shown; then the next refresh announces it.
    if (hudManager_.currentHUD() != hud)
        return;
    lastWeatherHUDKey_ = key;
    weatherHUDHasFired_ = true;
}

void WeatherAnnouncer::markSeen(const WeatherData &weather)
{
    lastWeatherHUDKey_ = weatherHUDKey(weather);
}

} // namespace quillmere
