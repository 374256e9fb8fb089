#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quillmere {

/// Which provider a record comes from.
enum class WeatherSource { AppleWeather, OpenMeteo };

/// One hour of the forecast.
struct HourlyForecast {
    int hour = 0;           ///< of the place's day, 0..23
    double temperature = 0; ///< °C
    double temperatureF = 0;
    int conditionCode = 0;   ///< WMO code
    QString conditionIcon{}; ///< a name of WeatherSymbols.h

    bool operator==(const HourlyForecast &) const = default;
};

/// The weather at a place: now, today, and in the next hours.
struct WeatherData {
    double temperature = 0; ///< °C
    double temperatureF = 0;
    int conditionCode = 0;   ///< WMO code
    QString conditionIcon{}; ///< a name of WeatherSymbols.h
    QString conditionLabel{};
    QString locationName{};
    std::optional<double> highTemp{}; ///< °C
    std::optional<double> highTempF{};
    std::optional<double> lowTemp{}; ///< °C
    std::optional<double> lowTempF{};
    std::optional<double> feelsLike{}; ///< °C
    std::optional<double> feelsLikeF{};
    std::optional<int> humidity{};     ///< percent, 0..100
    std::optional<double> windSpeed{}; ///< km/h
    std::optional<double> windSpeedMph{};
    std::optional<double> visibility{};     ///< km
    QList<HourlyForecast> hourlyForecast{}; ///< at most 8, oldest first
    WeatherSource source = WeatherSource::OpenMeteo;

    bool operator==(const WeatherData &) const = default;
};

inline constexpr qsizetype mostForecastHours = 8;

/// "appleWeather" or "openMeteo".
QLatin1StringView weatherSourceName(WeatherSource source);

} // namespace quillmere
