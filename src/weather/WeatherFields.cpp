#include "weather/WeatherFields.h"

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

QVariantList hourlyFields(const QList<HourlyForecast> &hours)
{
    QVariantList list;
    for (const HourlyForecast &hour : hours)
        list.append(QVariantMap{{u"hour"_s, hour.hour},
                                {u"temperature"_s, hour.temperature},
                                {u"temperatureF"_s, hour.temperatureF},
                                {u"conditionCode"_s, hour.conditionCode},
                                {u"conditionIcon"_s, hour.conditionIcon}});
    return list;
}

} // namespace

QVariantMap weatherFields(const WeatherData &weather)
{
    QVariantMap map{{u"temperature"_s, weather.temperature},
                    {u"temperatureF"_s, weather.temperatureF},
                    {u"conditionCode"_s, weather.conditionCode},
                    {u"conditionIcon"_s, weather.conditionIcon},
                    {u"conditionLabel"_s, weather.conditionLabel},
                    {u"locationName"_s, weather.locationName},
                    {u"hourlyForecast"_s, hourlyFields(weather.hourlyForecast)},
                    {u"source"_s, QString(weatherSourceName(weather.source))}};
    const std::pair<QLatin1StringView, const std::optional<double> &> optionals[] = {
        {"highTemp"_L1, weather.highTemp},     {"highTempF"_L1, weather.highTempF},
        {"lowTemp"_L1, weather.lowTemp},       {"lowTempF"_L1, weather.lowTempF},
        {"feelsLike"_L1, weather.feelsLike},   {"feelsLikeF"_L1, weather.feelsLikeF},
        {"windSpeed"_L1, weather.windSpeed},   {"windSpeedMph"_L1, weather.windSpeedMph},
        {"visibility"_L1, weather.visibility},
    };
    for (const auto &[key, value] : optionals) {
        if (value)
            map.insert(key, *value);
    }
    if (weather.humidity)
        map.insert(u"humidity"_s, *weather.humidity);
    return map;
}

} // namespace quillmere
