#include "weather/WeatherConditions.h"

#include "weather/WeatherSymbols.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

struct Row {
    QLatin1StringView name;
    int code;
    QLatin1StringView symbol;
    QLatin1StringView symbolAtNight{};
};

constexpr int unknownCode = 3;
constexpr qsizetype longestName = 40;

// The service's own symbols, which are outlined.
constexpr QLatin1StringView cloud{"cloud"};
constexpr QLatin1StringView sun{"sun.max"};
constexpr QLatin1StringView moon{"moon.stars"};
constexpr QLatin1StringView boltRain{"cloud.bolt.rain"};
constexpr QLatin1StringView sunBolt{"cloud.sun.bolt"};
constexpr QLatin1StringView moonBolt{"cloud.moon.bolt"};
constexpr QLatin1StringView sleet{"cloud.sleet"};
constexpr QLatin1StringView snow{"cloud.snow"};
constexpr QLatin1StringView windSnow{"wind.snow"};

constexpr std::array rows{
    Row{QLatin1StringView{"Clear"}, 0, sun, moon},
    Row{QLatin1StringView{"Hot"}, 0, sun, moon},
    Row{QLatin1StringView{"MostlyClear"}, 1, sun, moon},
    Row{QLatin1StringView{"PartlyCloudy"}, 2, QLatin1StringView{"cloud.sun"},
        QLatin1StringView{"cloud.moon"}},
    Row{QLatin1StringView{"Cloudy"}, 3, cloud},
    Row{QLatin1StringView{"MostlyCloudy"}, 3, cloud},
    Row{QLatin1StringView{"Breezy"}, 3, QLatin1StringView{"wind"}},
    Row{QLatin1StringView{"Windy"}, 3, QLatin1StringView{"wind"}},
    Row{QLatin1StringView{"BlowingDust"}, 3, QLatin1StringView{"sun.dust"}},
    Row{QLatin1StringView{"Foggy"}, 45, QLatin1StringView{"cloud.fog"}},
    Row{QLatin1StringView{"Haze"}, 45, QLatin1StringView{"sun.haze"}},
    Row{QLatin1StringView{"Smoky"}, 45, QLatin1StringView{"smoke"}},
    Row{QLatin1StringView{"Drizzle"}, 51, QLatin1StringView{"cloud.drizzle"}},
    Row{QLatin1StringView{"Rain"}, 63, QLatin1StringView{"cloud.rain"}},
    Row{QLatin1StringView{"HeavyRain"}, 65, QLatin1StringView{"cloud.heavyrain"}},
    Row{QLatin1StringView{"FreezingDrizzle"}, 66, sleet},
    Row{QLatin1StringView{"FreezingRain"}, 66, sleet},
    Row{QLatin1StringView{"Sleet"}, 66, sleet},
    Row{QLatin1StringView{"Hail"}, 66, QLatin1StringView{"cloud.hail"}},
    Row{QLatin1StringView{"WintryMix"}, 66, sleet},
    Row{QLatin1StringView{"Snow"}, 71, snow},
    Row{QLatin1StringView{"Flurries"}, 71, snow},
    Row{QLatin1StringView{"SunFlurries"}, 71, snow},
    Row{QLatin1StringView{"HeavySnow"}, 75, snow},
    Row{QLatin1StringView{"Blizzard"}, 75, windSnow},
    Row{QLatin1StringView{"BlowingSnow"}, 75, windSnow},
    Row{QLatin1StringView{"Frigid"}, 75, QLatin1StringView{"thermometer.snowflake"}},
    Row{QLatin1StringView{"SunShowers"}, 80, QLatin1StringView{"cloud.sun.rain"},
        QLatin1StringView{"cloud.moon.rain"}},
    Row{QLatin1StringView{"Thunderstorms"}, 95, boltRain},
    Row{QLatin1StringView{"IsolatedThunderstorms"}, 95, sunBolt, moonBolt},
    Row{QLatin1StringView{"ScatteredThunderstorms"}, 95, sunBolt, moonBolt},
    Row{QLatin1StringView{"StrongStorms"}, 95, boltRain},
    Row{QLatin1StringView{"TropicalStorm"}, 95, QLatin1StringView{"tropicalstorm"}},
    Row{QLatin1StringView{"Hurricane"}, 95, QLatin1StringView{"hurricane"}},
};

QString filled(QLatin1StringView symbol)
{
    const QString name = symbol + QLatin1StringView(".fill");
    const bool exists =
        std::ranges::find(symbols::weather::all, name) != symbols::weather::all.end();
    return exists ? name : QString(symbol);
}

/// "MostlyClear" is told as "Mostly Clear".
QString words(const QString &name)
{
    QString text;
    for (const QChar letter : name.left(longestName)) {
        if (!letter.isLetter())
            continue;
        if (letter.isUpper() && !text.isEmpty())
            text += u' ';
        text += text.isEmpty() ? letter.toUpper() : letter;
    }
    return text;
}

} // namespace

WeatherCondition weatherCondition(const QString &name, bool isDaylight)
{
    const auto row = std::ranges::find_if(rows, [&name](const Row &known) {
        return name.compare(known.name, Qt::CaseInsensitive) == 0;
    });
    if (row == rows.end())
        return {unknownCode, filled(cloud), words(name)};
    const bool hasNight = !row->symbolAtNight.isEmpty();
    return {row->code, filled(isDaylight || !hasNight ? row->symbol : row->symbolAtNight),
            words(QString(row->name))};
}

} // namespace quillmere
