#include "weather/WeatherKitReply.h"

#include "weather/JsonValues.h"
#include "weather/OpenMeteo.h"
#include "weather/ServerAddress.h"
#include "weather/WeatherConditions.h"
#include "weather/WeatherUnits.h"

#include <QJsonDocument>
#include <QTimeZone>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 secondsPerHour = 3600;

QDateTime startOf(const QJsonObject &forecast)
{
    return QDateTime::fromString(forecast["forecastStart"_L1].toString(), Qt::ISODate);
}

WeatherCondition conditionOf(const QJsonObject &weather)
{
    return weatherCondition(weather["conditionCode"_L1].toString(),
                            weather["daylight"_L1].toBool(true));
}

QList<HourlyForecast> hoursOf(const QJsonArray &hours, const QDateTime &now)
{
    QList<HourlyForecast> forecasts;
    for (const auto &value : hours) {
        if (forecasts.size() == mostForecastHours)
            break;
        const QJsonObject hour = value.toObject();
        const QDateTime start = startOf(hour);
        const auto temperature = json::number(hour["temperature"_L1]);
        if (!start.isValid() || start <= now.addSecs(-secondsPerHour) || !temperature)
            continue;
        const auto condition = conditionOf(hour);
        forecasts.append({start.toTimeZone(now.timeZone()).time().hour(), *temperature,
                          fahrenheit(*temperature), condition.code, condition.icon});
    }
    return forecasts;
}

QJsonObject todayIn(const QJsonArray &days, const QDateTime &now)
{
    for (const auto &value : days) {
        const QDateTime start = startOf(value.toObject());
        if (start.isValid() && start.toTimeZone(now.timeZone()).date() == now.date())
            return value.toObject();
    }
    return {};
}

} // namespace

QUrl weatherKitUrl(const QUrl &server, double latitude, double longitude,
                   const QByteArray &timeZone)
{
    return QUrl(serverAddress(server) + "/api/v1/weather/en/"_L1 + coordinateText(latitude) + u'/' +
                coordinateText(longitude) +
                "?dataSets=currentWeather,forecastHourly,forecastDaily&timezone="_L1 +
                QString::fromLatin1(timeZone));
}

std::optional<WeatherData> weatherKitWeather(const QByteArray &answer, const QDateTime &now)
{
    const QJsonObject root = QJsonDocument::fromJson(answer).object();
    const QJsonObject current = root["currentWeather"_L1].toObject();
    const auto temperature = json::number(current["temperature"_L1]);
    if (!temperature || !current["conditionCode"_L1].isString())
        return std::nullopt;
    const auto condition = conditionOf(current);
    const auto today = todayIn(root["forecastDaily"_L1]["days"_L1].toArray(), now);
    WeatherData weather{.temperature = *temperature,
                        .temperatureF = fahrenheit(*temperature),
                        .conditionCode = condition.code,
                        .conditionIcon = condition.icon,
                        .conditionLabel = condition.label};
    weather.highTemp = json::number(today["temperatureMax"_L1]);
    weather.highTempF = converted(weather.highTemp, &fahrenheit);
    weather.lowTemp = json::number(today["temperatureMin"_L1]);
    weather.lowTempF = converted(weather.lowTemp, &fahrenheit);
    weather.feelsLike = json::number(current["temperatureApparent"_L1]);
    weather.feelsLikeF = converted(weather.feelsLike, &fahrenheit);
    weather.humidity = json::percent(json::number(current["humidity"_L1]));
    weather.windSpeed = json::number(current["windSpeed"_L1]);
    weather.windSpeedMph = converted(weather.windSpeed, &milesPerHour);
    weather.visibility = json::kilometres(current["visibility"_L1]);
    weather.hourlyForecast = hoursOf(root["forecastHourly"_L1]["hours"_L1].toArray(), now);
    weather.source = WeatherSource::AppleWeather;
    return weather;
}

} // namespace quillmere
