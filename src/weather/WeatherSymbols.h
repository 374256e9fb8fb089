#pragma once

#include <QLatin1StringView>

#include <array>

/// The symbols that weather is drawn with.
namespace quillmere::symbols::weather {

inline constexpr QLatin1StringView sun{"sun.max.fill"};
inline constexpr QLatin1StringView moon{"moon.stars.fill"};
inline constexpr QLatin1StringView cloud{"cloud.fill"};
inline constexpr QLatin1StringView cloudSun{"cloud.sun.fill"};
inline constexpr QLatin1StringView cloudMoon{"cloud.moon.fill"};
inline constexpr QLatin1StringView fog{"cloud.fog.fill"};
inline constexpr QLatin1StringView haze{"sun.haze.fill"};
inline constexpr QLatin1StringView dust{"sun.dust.fill"};
inline constexpr QLatin1StringView smoke{"smoke.fill"};
inline constexpr QLatin1StringView wind{"wind"};
inline constexpr QLatin1StringView drizzle{"cloud.drizzle.fill"};
inline constexpr QLatin1StringView rain{"cloud.rain.fill"};
inline constexpr QLatin1StringView heavyRain{"cloud.heavyrain.fill"};
inline constexpr QLatin1StringView sunRain{"cloud.sun.rain.fill"};
inline constexpr QLatin1StringView moonRain{"cloud.moon.rain.fill"};
inline constexpr QLatin1StringView sleet{"cloud.sleet.fill"};
inline constexpr QLatin1StringView hail{"cloud.hail.fill"};
inline constexpr QLatin1StringView snow{"cloud.snow.fill"};
inline constexpr QLatin1StringView snowflake{"snowflake"};
inline constexpr QLatin1StringView windSnow{"wind.snow"};
inline constexpr QLatin1StringView frost{"thermometer.snowflake"};
inline constexpr QLatin1StringView bolt{"cloud.bolt.fill"};
inline constexpr QLatin1StringView boltRain{"cloud.bolt.rain.fill"};
inline constexpr QLatin1StringView sunBolt{"cloud.sun.bolt.fill"};
inline constexpr QLatin1StringView moonBolt{"cloud.moon.bolt.fill"};
inline constexpr QLatin1StringView tropicalStorm{"tropicalstorm"};
inline constexpr QLatin1StringView hurricane{"hurricane"};

/// Every one of them, so that views can prove that they have them all.
inline constexpr std::array all{
    sun,       moon,     cloud, cloudSun,  cloudMoon, fog,      haze,     dust,          smoke,
    wind,      drizzle,  rain,  heavyRain, sunRain,   moonRain, sleet,    hail,          snow,
    snowflake, windSnow, frost, bolt,      boltRain,  sunBolt,  moonBolt, tropicalStorm, hurricane};

} // namespace quillmere::symbols::weather
