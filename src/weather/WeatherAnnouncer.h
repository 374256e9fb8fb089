#pragma once

#include "weather/WeatherData.h"

#include <optional>

namespace quillmere {

class HUDManager;
class SettingsStore;

/// Announces weather that differs from what was announced last. Main thread only.
class WeatherAnnouncer
{
public:
    static constexpr double durationSeconds = 5;

    WeatherAnnouncer(SettingsStore &settings, HUDManager &hudManager)
        : settings_(settings)
        , hudManager_(hudManager)
    {
    }

    /// Shows the weather HUD unless the user wants none or has seen this weather.
    void announce(const WeatherData &weather);

    /// The user has seen this weather elsewhere.
    void markSeen(const WeatherData &weather);

    /// A weather HUD has been shown in this run.
    bool hasFired() const { return weatherHUDHasFired_; }

private:
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::optional<QString> lastWeatherHUDKey_;
    bool weatherHUDHasFired_ = false;
};

} // namespace quillmere
