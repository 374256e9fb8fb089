#pragma once

#include "weather/WeatherData.h"

#include <QByteArray>
#include <QUrl>

namespace quillmere {

/// A coordinate in the shortest decimal form that reads back as the same number.
QString coordinateText(double degrees);

/// The question for the weather at a place; `server` is the endpoint.
QUrl openMeteoUrl(const QUrl &server, double latitude, double longitude);

/// The record in an answer, without the name of the place; nothing if a required value is missing.
std::optional<WeatherData> openMeteoWeather(const QByteArray &answer);

} // namespace quillmere
