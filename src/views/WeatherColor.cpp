#include "views/WeatherColor.h"

#include "weather/WeatherSymbols.h"

#include <algorithm>

namespace quillmere {

QColor weatherColor(const QString &symbol)
{
    using namespace symbols::weather;
    struct Shade {
        std::initializer_list<QLatin1StringView> symbols;
        QColor color;
    };
    static const Shade shades[] = {
        {{sun, cloudSun, haze, dust, bolt, boltRain, sunBolt, moonBolt}, {255, 212, 102}},
        {{drizzle, rain, heavyRain, sunRain, moonRain, sleet, hail}, {110, 176, 255}},
        {{moon, cloudMoon}, {186, 176, 255}},
        {{snow, snowflake, windSnow, frost}, {214, 236, 255}},
    };
    for (const Shade &shade : shades)
        if (std::ranges::find(shade.symbols, symbol) != shade.symbols.end())
            return shade.color;
    return {201, 214, 232};
}

} // namespace quillmere
