#pragma once

#include "weather/WeatherData.h"

#include <QByteArray>
#include <QDateTime>
#include <QUrl>

namespace quillmere {

/// The question for the weather at a place; `server` is the endpoint, `timeZone` the IANA name of
/// the zone whose days are meant.
QUrl weatherKitUrl(const QUrl &server, double latitude, double longitude,
                   const QByteArray &timeZone);

/// The record in an answer, without the name of the place; nothing if there is no usable current
/// weather in it. The zone of `now` decides what today is and which hours are told.
std::optional<WeatherData> weatherKitWeather(const QByteArray &answer, const QDateTime &now);

} // namespace quillmere
