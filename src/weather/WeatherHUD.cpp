#include "weather/WeatherHUD.h"

#include "weather/ConditionText.h"

#include <QCoreApplication>

#include <cmath>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(WeatherHUD)
};

} // namespace

QString temperatureText(double celsius, double fahrenheit, bool useFahrenheit)
{
    // Rounded as an integer, as there is no "-0°".
    return QString::number(std::lround(useFahrenheit ? fahrenheit : celsius)) + u'°';
}

HUDContent weatherHUD(const WeatherData &weather, bool useFahrenheit)
{
    const auto text = [useFahrenheit](double celsius, double fahrenheit) {
        return temperatureText(celsius, fahrenheit, useFahrenheit);
    };
    QString subtitle = weather.locationName;
    if (weather.highTemp && weather.lowTemp)
        subtitle = Words::tr("%1, %2 to %3", "place, today's lowest and highest temperature")
                       .arg(subtitle, text(*weather.lowTemp, *weather.lowTempF),
                            text(*weather.highTemp, *weather.highTempF));
    return {.title = Words::tr("%1 %2", "temperature and condition")
                         .arg(text(weather.temperature, weather.temperatureF),
                              conditionText(weather.conditionLabel)),
            .subtitle = subtitle,
            .icon = weather.conditionIcon,
            .type = HUDContent::HUDType::Weather};
}

QString weatherHUDKey(const WeatherData &weather)
{
    return temperatureText(weather.temperature, weather.temperatureF, false) + u'|' +
           weather.conditionLabel + u'|' + weather.locationName;
}

} // namespace quillmere
