#include "weather/WeatherCodes.h"

#include "weather/WeatherData.h"
#include "weather/WeatherSymbols.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

struct Code {
    int code;
    QLatin1StringView icon;
    QLatin1StringView label;
};

constexpr std::array codes{
    Code{0, symbols::weather::sun, QLatin1StringView{"Clear"}},
    Code{1, symbols::weather::cloudSun, QLatin1StringView{"Mostly Clear"}},
    Code{2, symbols::weather::cloudSun, QLatin1StringView{"Partly Cloudy"}},
    Code{3, symbols::weather::cloud, QLatin1StringView{"Overcast"}},
    Code{45, symbols::weather::fog, QLatin1StringView{"Foggy"}},
    Code{48, symbols::weather::fog, QLatin1StringView{"Foggy"}},
    Code{51, symbols::weather::drizzle, QLatin1StringView{"Drizzle"}},
    Code{53, symbols::weather::drizzle, QLatin1StringView{"Drizzle"}},
    Code{55, symbols::weather::drizzle, QLatin1StringView{"Drizzle"}},
    Code{61, symbols::weather::rain, QLatin1StringView{"Rain"}},
    Code{63, symbols::weather::rain, QLatin1StringView{"Rain"}},
    Code{65, symbols::weather::rain, QLatin1StringView{"Heavy Rain"}},
    Code{66, symbols::weather::sleet, QLatin1StringView{"Freezing Rain"}},
    Code{67, symbols::weather::sleet, QLatin1StringView{"Freezing Rain"}},
    Code{71, symbols::weather::snow, QLatin1StringView{"Snow"}},
    Code{73, symbols::weather::snow, QLatin1StringView{"Snow"}},
    Code{75, symbols::weather::snow, QLatin1StringView{"Heavy Snow"}},
    Code{77, symbols::weather::snowflake, QLatin1StringView{"Snow Grains"}},
    Code{80, symbols::weather::heavyRain, QLatin1StringView{"Rain Showers"}},
    Code{81, symbols::weather::heavyRain, QLatin1StringView{"Rain Showers"}},
    Code{82, symbols::weather::heavyRain, QLatin1StringView{"Rain Showers"}},
    Code{85, symbols::weather::snow, QLatin1StringView{"Snow Showers"}},
    Code{86, symbols::weather::snow, QLatin1StringView{"Snow Showers"}},
    Code{95, symbols::weather::bolt, QLatin1StringView{"Thunderstorm"}},
    Code{96, symbols::weather::boltRain, QLatin1StringView{"Thunderstorm with Hail"}},
    Code{99, symbols::weather::boltRain, QLatin1StringView{"Thunderstorm with Hail"}},
};

constexpr Code anyOther{-1, symbols::weather::cloud, QLatin1StringView{"Cloudy"}};

const Code &find(int code)
{
    const auto found = std::ranges::find(codes, code, &Code::code);
    return found == codes.end() ? anyOther : *found;
}

} // namespace

QLatin1StringView weatherCodeIcon(int code)
{
    return find(code).icon;
}

QLatin1StringView weatherCodeLabel(int code)
{
    return find(code).label;
}

QLatin1StringView weatherSourceName(WeatherSource source)
{
    return source == WeatherSource::AppleWeather ? QLatin1StringView("appleWeather")
                                                 : QLatin1StringView("openMeteo");
}

} // namespace quillmere
