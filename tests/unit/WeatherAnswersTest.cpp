#include "weather/OpenMeteo.h"
#include "weather/PlaceSearch.h"
#include "weather/WeatherCodes.h"
#include "weather/WeatherConditions.h"
#include "weather/WeatherHUD.h"
#include "weather/WeatherKitReply.h"
#include "weather/WeatherUnits.h"

#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

QList<int> hours(const WeatherData &weather)
{
    QList<int> list;
    for (const auto &entry : weather.hourlyForecast)
        list.append(entry.hour);
    return list;
}

TEST(WeatherAnswers, EveryCodeHasItsIconAndLabel)
{
    struct {
        int code;
        const char *icon;
        const char *label;
    } const cases[] = {
        {3, "cloud.fill", "Overcast"},
        {48, "cloud.fog.fill", "Foggy"},
        {65, "cloud.rain.fill", "Heavy Rain"},
        {77, "snowflake", "Snow Grains"},
        {82, "cloud.heavyrain.fill", "Rain Showers"},
        {99, "cloud.bolt.rain.fill", "Thunderstorm with Hail"},
        {100, "cloud.fill", "Cloudy"},
        {-1, "cloud.fill", "Cloudy"},
    };
    for (const auto &[code, icon, label] : cases) {
        EXPECT_EQ(weatherCodeIcon(code), QLatin1StringView(icon)) << code;
        EXPECT_EQ(weatherCodeLabel(code), QLatin1StringView(label)) << code;
    }
}

TEST(WeatherAnswers, ConditionsOfThePrimaryService)
{
    struct {
        const char *name;
        int code;
        const char *icon;
        const char *label;
    } const cases[] = {
        {"Frigid", 75, "thermometer.snowflake", "Frigid"},
        {"Hail", 66, "cloud.hail.fill", "Hail"},
        {"BlowingDust", 3, "sun.dust.fill", "Blowing Dust"},
        {"hot", 0, "moon.stars.fill", "Hot"},
        {"sunShowers", 80, "cloud.moon.rain.fill", "Sun Showers"},
        {"Hurricane", 95, "hurricane", "Hurricane"},
        {"RainOfFrogs", 3, "cloud.fill", "Rain Of Frogs"},
        {"<b>x\n", 3, "cloud.fill", "Bx"},
    };
    for (const auto &[name, code, icon, label] : cases) {
        const auto condition = weatherCondition(QString::fromLatin1(name), false);
        EXPECT_EQ(condition.code, code) << name;
        EXPECT_EQ(condition.icon, QLatin1StringView(icon)) << name;
        EXPECT_EQ(condition.label, QLatin1StringView(label)) << name;
    }
    EXPECT_EQ(weatherCondition(u"Clear"_s, true).icon, u"sun.max.fill"_s);
}

TEST(WeatherAnswers, OpenMeteoIsAskedExactly)
{
    EXPECT_EQ(openMeteoUrl(QUrl(u"https://host"_s), 0.00001, -0.1278).toEncoded(),
              "https://host/v1/forecast?latitude=0.00001&longitude=-0.1278"
              "&current=temperature_2m,weather_code,apparent_temperature,relative_humidity_2m,"
              "wind_speed_10m,visibility&daily=temperature_2m_max,temperature_2m_min"
              "&hourly=temperature_2m,weather_code&forecast_hours=8"
              "&temperature_unit=celsius&timezone=auto");
}

TEST(WeatherAnswers, OpenMeteoWhole)
{
    // The night the clocks go forward: 02:00 does not exist where this test may run.
    const auto weather = openMeteoWeather(R"({"current":{"temperature_2m":20,"weather_code":3.0,
        "apparent_temperature":-40,"relative_humidity_2m":54,"wind_speed_10m":10,
        "visibility":24140},"daily":{"temperature_2m_max":[21.5,30],"temperature_2m_min":[null]},
        "hourly":{"time":["2026-03-29T01:00","2026-03-29T02:00","29.3. 3 Uhr","2026-03-29T04:00"],
        "temperature_2m":[1,2,3,"x"],"weather_code":[0,48,1,1,1]}})");
    ASSERT_TRUE(weather);
    const WeatherData expected{.temperature = 20,
                               .temperatureF = 68,
                               .conditionCode = 3,
                               .conditionIcon = u"cloud.fill"_s,
                               .conditionLabel = u"Overcast"_s,
                               .highTemp = 21.5,
                               .highTempF = fahrenheit(21.5),
                               .feelsLike = -40,
                               .feelsLikeF = -40,
                               .humidity = 54,
                               .windSpeed = 10,
                               .windSpeedMph = 6.21371,
                               .visibility = 24.14,
                               .hourlyForecast = {{1, 1, fahrenheit(1), 0, u"sun.max.fill"_s},
                                                  {2, 2, fahrenheit(2), 48, u"cloud.fog.fill"_s}}};
    EXPECT_TRUE(*weather == expected);
}

TEST(WeatherAnswers, OpenMeteoOfWrongShape)
{
    const QByteArray deep = QByteArray(5000, '[');
    for (const QByteArray &broken :
         {QByteArray(), QByteArray("<html>"), QByteArray("[{}]"), QByteArray("{}"), deep,
          QByteArray(R"({"current":[]})"), QByteArray(R"({"current":{"weather_code":3}})"),
          QByteArray(R"({"current":{"temperature_2m":"20","weather_code":3}})"),
          QByteArray(R"({"current":{"temperature_2m":null,"weather_code":3}})"),
          QByteArray(R"({"current":{"temperature_2m":1e300,"weather_code":3}})"),
          QByteArray(R"({"current":{"temperature_2m":20}})"),
          QByteArray(R"({"current":{"temperature_2m":20,"weather_code":3.5}})"),
          QByteArray(R"({"current":{"temperature_2m":20,"weather_code":true}})")})
        EXPECT_FALSE(openMeteoWeather(broken)) << broken.left(80).toStdString();

    const auto plain = openMeteoWeather(R"({"current":{"temperature_2m":20,"weather_code":0,
        "relative_humidity_2m":540,"visibility":"far"},"daily":7,"hourly":[1]})");
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->highTemp || plain->highTempF || plain->windSpeedMph || plain->humidity ||
                 plain->visibility);
    EXPECT_TRUE(plain->hourlyForecast.isEmpty());
}

QByteArray openMeteoWithHours(int times, int others)
{
    const QByteArray time = QByteArray("\"2024-05-01T14:00\",").repeated(times).chopped(1);
    const QByteArray number = QByteArray("1,").repeated(others).chopped(1);
    return R"({"current":{"temperature_2m":1,"weather_code":1},"hourly":{"time":[)" + time +
           R"(],"temperature_2m":[)" + number + R"(],"weather_code":[)" + number + "]}}";
}

TEST(WeatherAnswers, AtMostEightHoursAndNeverMoreThanAllArraysHold)
{
    EXPECT_EQ(openMeteoWeather(openMeteoWithHours(5, 5))->hourlyForecast.size(), 5);
    EXPECT_EQ(openMeteoWeather(openMeteoWithHours(12, 12))->hourlyForecast.size(), 8);
    EXPECT_EQ(openMeteoWeather(openMeteoWithHours(12, 3))->hourlyForecast.size(), 3);
}

TEST(WeatherAnswers, PrimaryServiceTellsTheHoursAndTheDayOfThePlace)
{
    // 2026-10-24 22:30 UTC is already the 25th in Berlin, where the clocks go back at 01:00 UTC.
    const QDateTime now = QDateTime(QDate(2026, 10, 24), QTime(22, 30), Qt::UTC)
                              .toTimeZone(QTimeZone("Europe/Berlin"));
    QStringList forecasts;
    for (int i = -2; i < 12; ++i) {
        forecasts.append(
            u"{\"forecastStart\":\"%1\",\"temperature\":%2,\"conditionCode\":\"Clear\","
            "\"daylight\":false}"_s.arg(QDateTime(QDate(2026, 10, 24), QTime(22, 0), Qt::UTC)
                                            .addSecs(3600LL * i)
                                            .toString(Qt::ISODate),
                                        QString::number(i)));
    }
    const auto weather = weatherKitWeather(
        R"({"currentWeather":{"temperature":17.26,"temperatureApparent":16,"humidity":0.545,
         "windSpeed":10,"visibility":24140,"conditionCode":"PartlyCloudy","daylight":false},
         "forecastDaily":{"days":[
         {"forecastStart":"2026-10-23T22:00:00Z","temperatureMax":1,"temperatureMin":0},
         {"forecastStart":"2026-10-24T22:00:00Z","temperatureMax":20,"temperatureMin":"x"}]},
         "forecastHourly":{"hours":[)" +
            forecasts.join(u',').toUtf8() + "]}}",
        now);
    ASSERT_TRUE(weather);
    EXPECT_THAT(hours(*weather), ElementsAre(0, 1, 2, 2, 3, 4, 5, 6));
    EXPECT_EQ(weather->hourlyForecast.first().conditionIcon, u"moon.stars.fill"_s);
    EXPECT_EQ(weather->highTempF, 68);
    EXPECT_FALSE(weather->lowTemp || weather->lowTempF);
    EXPECT_EQ(weather->humidity, 55);
    EXPECT_EQ(weather->visibility, 24.14);
    EXPECT_EQ(weather->conditionCode, 2);
    EXPECT_EQ(weather->conditionIcon, u"cloud.moon.fill"_s);
    EXPECT_EQ(weather->source, WeatherSource::AppleWeather);

    for (const char *broken : {"", "[]", "{\"currentWeather\":{\"temperature\":1}}",
                               "{\"currentWeather\":{\"conditionCode\":\"Clear\"}}"})
        EXPECT_FALSE(weatherKitWeather(broken, now)) << broken;
}

TEST(WeatherAnswers, PlacesAreTheOnesOnEarth)
{
    const auto places = placesIn(R"({"results":[
        {"name":"Paris","latitude":48.85,"longitude":2.35,"timezone":"Europe/Paris",
         "admin1":"Ile-de-France","country":"France"},
        {"name":"Paris","latitude":33.66,"longitude":-95.55,"timezone":"Mars/Olympus"},
        {"name":"Nowhere","latitude":91,"longitude":0},{"name":"","latitude":1,"longitude":1},
        {"name":"Text","latitude":"1","longitude":1},7]})");
    ASSERT_TRUE(places);
    EXPECT_THAT(*places, ElementsAre(FoundPlace{{48.85, 2.35, u"Paris"_s, "Europe/Paris"},
                                                u"Ile-de-France, France"_s},
                                     FoundPlace{{33.66, -95.55, u"Paris"_s, ""}, {}}));
    EXPECT_TRUE(placesIn("{}")->isEmpty()) << "how the server says that there is none";
    EXPECT_FALSE(placesIn("<html>"));
    EXPECT_EQ(placeSearchUrl(QUrl(u"https://host/"_s), u"Köln & x"_s).toEncoded().toStdString(),
              "https://host/v1/search?name=K%C3%B6ln%20%26%20x&count=10&language=en&format=json");
}

TEST(WeatherAnswers, TheHUDReadsInTheChosenUnit)
{
    const WeatherData weather{
        .temperature = -0.4, .temperatureF = 31.28, .conditionLabel = u"Snow"_s};
    EXPECT_EQ(weatherHUD(weather, false).title, u"0° Snow"_s);
    EXPECT_EQ(weatherHUD(weather, true).title, u"31° Snow"_s);
}

} // namespace
} // namespace quillmere
