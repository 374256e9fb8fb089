#pragma once

#include "weather/WeatherData.h"

#include <QVariantMap>

namespace quillmere {

/// A record as other programs read it: keys are its field names, the source is its case name,
/// absent values are left out, hours are a list of dictionaries.
QVariantMap weatherFields(const WeatherData &weather);

} // namespace quillmere
