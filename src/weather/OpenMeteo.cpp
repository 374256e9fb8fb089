#include "weather/OpenMeteo.h"

#include "weather/JsonValues.h"
#include "weather/ServerAddress.h"
#include "weather/WeatherCodes.h"
#include "weather/WeatherUnits.h"

#include <QDateTime>
#include <QJsonDocument>

#include <array>
#include <charconv>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

/// The hour as written: the text is in the place's own time, of which this machine may know
/// nothing, so no zone may come into play.
std::optional<int> hourOf(const QString &text)
{
    const auto halves = text.split(u'T');
    if (halves.size() != 2 || !QDate::fromString(halves[0], Qt::ISODate).isValid())
        return std::nullopt;
    const QTime time = QTime::fromString(halves[1], u"HH:mm"_s);
    return time.isValid() ? std::optional(time.hour()) : std::nullopt;
}

std::optional<int> percentIn(const QJsonValue &value)
{
    const auto percent = json::integer(value);
    return percent && *percent >= 0 && *percent <= 100 ? percent : std::nullopt;
}

QList<HourlyForecast> hoursOf(const QJsonObject &hourly)
{
    const auto times = hourly["time"_L1].toArray();
    const auto temperatures = hourly["temperature_2m"_L1].toArray();
    const auto codes = hourly["weather_code"_L1].toArray();
    const auto count =
        std::min({times.size(), temperatures.size(), codes.size(), mostForecastHours});
    QList<HourlyForecast> hours;
    for (qsizetype i = 0; i < count; ++i) {
        const auto hour = hourOf(times[i].toString());
        const auto temperature = json::number(temperatures[i]);
        const auto code = json::integer(codes[i]);
        if (hour && temperature && code)
            hours.append(
                {*hour, *temperature, fahrenheit(*temperature), *code, weatherCodeIcon(*code)});
    }
    return hours;
}

} // namespace

QString coordinateText(double degrees)
{
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), degrees, std::chars_format::fixed);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

QUrl openMeteoUrl(const QUrl &server, double latitude, double longitude)
{
    return QUrl(
        serverAddress(server) + "/v1/forecast?latitude="_L1 + coordinateText(latitude) +
        "&longitude="_L1 + coordinateText(longitude) +
        "&current=temperature_2m,weather_code,apparent_temperature,relative_humidity_2m,wind_speed_10m,visibility"_L1
        "&daily=temperature_2m_max,temperature_2m_min"
        "&hourly=temperature_2m,weather_code&forecast_hours=8"
        "&temperature_unit=celsius&timezone=auto");
}

std::optional<WeatherData> openMeteoWeather(const QByteArray &answer)
{
    const QJsonObject root = QJsonDocument::fromJson(answer).object();
    const QJsonObject current = root["current"_L1].toObject();
    const auto temperature = json::number(current["temperature_2m"_L1]);
    const auto code = json::integer(current["weather_code"_L1]);
    if (!temperature || !code)
        return std::nullopt;
    const QJsonObject daily = root["daily"_L1].toObject();
    WeatherData weather{.temperature = *temperature,
                        .temperatureF = fahrenheit(*temperature),
                        .conditionCode = *code,
                        .conditionIcon = weatherCodeIcon(*code),
                        .conditionLabel = weatherCodeLabel(*code)};
    weather.highTemp = json::number(daily["temperature_2m_max"_L1].toArray().at(0));
    weather.highTempF = converted(weather.highTemp, &fahrenheit);
    weather.lowTemp = json::number(daily["temperature_2m_min"_L1].toArray().at(0));
    weather.lowTempF = converted(weather.lowTemp, &fahrenheit);
    weather.feelsLike = json::number(current["apparent_temperature"_L1]);
    weather.feelsLikeF = converted(weather.feelsLike, &fahrenheit);
    weather.humidity = percentIn(current["relative_humidity_2m"_L1]);
    weather.windSpeed = json::number(current["wind_speed_10m"_L1]);
    weather.windSpeedMph = converted(weather.windSpeed, &milesPerHour);
    weather.visibility = json::kilometres(current["visibility"_L1]);
    weather.hourlyForecast = hoursOf(root["hourly"_L1].toObject());
    weather.source = WeatherSource::OpenMeteo;
    return weather;
}

} // namespace quillmere
