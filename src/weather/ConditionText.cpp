#include "weather/ConditionText.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

constexpr const char *context = "WeatherCondition";

// For the translators: every label that either provider's conditions lead to.
[[maybe_unused]] constexpr const char *labels[] = {
    QT_TRANSLATE_NOOP("WeatherCondition", "Clear"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Mostly Clear"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Partly Cloudy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Overcast"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Foggy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Drizzle"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Rain"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Heavy Rain"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Freezing Rain"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Snow"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Heavy Snow"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Snow Grains"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Rain Showers"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Snow Showers"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Thunderstorm"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Thunderstorm with Hail"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Cloudy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Hot"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Mostly Cloudy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Breezy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Windy"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Blowing Dust"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Haze"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Smoky"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Freezing Drizzle"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Sleet"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Hail"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Wintry Mix"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Flurries"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Sun Flurries"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Blizzard"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Blowing Snow"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Frigid"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Sun Showers"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Thunderstorms"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Isolated Thunderstorms"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Scattered Thunderstorms"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Strong Storms"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Tropical Storm"),
    QT_TRANSLATE_NOOP("WeatherCondition", "Hurricane"),
};

} // namespace

QString conditionText(const QString &label)
{
    return QCoreApplication::translate(context, label.toUtf8().constData());
}

} // namespace quillmere
