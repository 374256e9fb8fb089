#pragma once

#include "island/HUDContent.h"
#include "weather/WeatherData.h"

namespace quillmere {

/// "18°", in the unit people read.
QString temperatureText(double celsius, double fahrenheit, bool useFahrenheit);

/// What is announced of a record: temperature and condition, then place and today's range.
HUDContent weatherHUD(const WeatherData &weather, bool useFahrenheit);

/// Two records that read the same have the same key, whatever the unit they are read in.
QString weatherHUDKey(const WeatherData &weather);

} // namespace quillmere
