#include "views/WeatherModel.h"

#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"
#include "views/PlainText.h"
#include "views/WeatherColor.h"
#include "weather/ConditionText.h"
#include "weather/TypedPlace.h"
#include "weather/WeatherHUD.h"
#include "weather/WeatherService.h"

#include <QLocale>

#include <cmath>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr qsizetype longestName = 80;

/// The server is asked once the user pauses, not for every letter.
constexpr Duration typingPause = 350ms;

bool isMetric()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem;
}

QString localNumber(double value)
{
    return QLocale().toString(std::lround(value));
}

QVariantMap namedValue(const QString &name, const QString &value)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("value"), value}};
}

QString windText(const WeatherData &weather)
{
    return isMetric() ? WeatherModel::tr("%1 km/h").arg(localNumber(*weather.windSpeed))
                      : WeatherModel::tr("%1 mph").arg(localNumber(*weather.windSpeedMph));
}

QString visibilityText(double kilometres)
{
    constexpr double milesPerKilometre = 0.621371;
    return isMetric() ? WeatherModel::tr("%1 km").arg(localNumber(kilometres))
                      : WeatherModel::tr("%1 mi").arg(localNumber(kilometres * milesPerKilometre));
}

/// "15", or "3 PM" where people read the clock that way.
QString hourText(int hour)
{
    const QLocale locale;
    const bool halves = locale.timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
    return locale.toString(QTime(hour, 0), halves ? QStringLiteral("h AP") : QStringLiteral("HH"));
}

} // namespace

WeatherModel::WeatherModel(RunLoop &runLoop, SettingsStore &settings, WeatherService &service,
                           TypedPlace &place, PlaceSearch &search, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , settings_(settings)
    , service_(service)
    , place_(place)
    , search_(search)
{
    connect(&service_, &WeatherService::cachedWeatherChanged, this, &WeatherModel::weatherChanged);
    connect(&service_, &WeatherService::cachedWeatherChanged, this,
            &WeatherModel::explanationChanged);
    connect(&service_, &WeatherService::currentAuthStatusChanged, this,
            &WeatherModel::explanationChanged);
    connect(&service_, &WeatherService::lastUpdateChanged, this, &WeatherModel::followClock);
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        if (key == settings_.weatherUseFahrenheit.key())
            Q_EMIT weatherChanged();
    });
}

void WeatherModel::setWatched(bool watched)
{
    if (std::exchange(watched_, watched) == watched)
        return;
    if (!watched)
        closeSearch();
    followClock();
}

/// A minute older.
void WeatherModel::followClock()
{
    nextMinute_.cancel();
    if (!watched_ || !hasWeather())
        return;
    nextMinute_ = runLoop_.after(1min, [this] { followClock(); });
    Q_EMIT sourceChanged();
}

bool WeatherModel::hasWeather() const
{
    return service_.cachedWeather().has_value();
}

const WeatherData &WeatherModel::weather() const
{
    static const WeatherData none;
    return service_.cachedWeather() ? *service_.cachedWeather() : none;
}

QString WeatherModel::degrees(double celsius, double fahrenheit) const
{
    return temperatureText(celsius, fahrenheit, settings_.weatherUseFahrenheit.get());
}

QString WeatherModel::temperature() const
{
    return degrees(weather().temperature, weather().temperatureF);
}

QString WeatherModel::feelsLike() const
{
    const WeatherData &now = weather();
    return now.feelsLike ? tr("feels like %1").arg(degrees(*now.feelsLike, *now.feelsLikeF))
                         : QString();
}

QString WeatherModel::condition() const
{
    return plainText(conditionText(weather().conditionLabel), longestName);
}

QString WeatherModel::place() const
{
    return plainText(weather().locationName, longestName);
}

QString WeatherModel::range() const
{
    const WeatherData &now = weather();
    QStringList ends;
    //: Today's highest and lowest temperature, in as few letters as can be
    if (now.highTemp)
        ends.append(tr("H %1").arg(degrees(*now.highTemp, *now.highTempF)));
    if (now.lowTemp)
        ends.append(tr("L %1").arg(degrees(*now.lowTemp, *now.lowTempF)));
    return ends.join(u' ');
}

QVariantList WeatherModel::details() const
{
    const WeatherData &now = weather();
    QVariantList list;
    if (now.humidity)
        list.append(namedValue(tr("Humidity"), tr("%1%").arg(QLocale().toString(*now.humidity))));
    if (now.windSpeed && now.windSpeedMph)
        list.append(namedValue(tr("Wind"), windText(now)));
    if (now.visibility)
        list.append(namedValue(tr("Visibility"), visibilityText(*now.visibility)));
    return list;
}

QVariantList WeatherModel::hours() const
{
    QVariantList list;
    for (const HourlyForecast &hour : weather().hourlyForecast)
        list.append(QVariantMap{
            {QStringLiteral("hour"), list.isEmpty() ? tr("Now") : hourText(hour.hour)},
            {QStringLiteral("symbol"), hour.conditionIcon},
            {QStringLiteral("color"), weatherColor(hour.conditionIcon)},
            {QStringLiteral("temperature"), degrees(hour.temperature, hour.temperatureF)}});
    return list;
}

QString WeatherModel::source() const
{
    if (!hasWeather() || !service_.lastUpdate())
        return {};
    const QString name = weather().source == WeatherSource::AppleWeather
                             ? QStringLiteral("Apple Weather")
                             : QStringLiteral("Open-Meteo");
    const auto age =
        std::chrono::floor<std::chrono::minutes>(runLoop_.now() - *service_.lastUpdate());
    if (age < 1min)
        return tr("%1, just now", "who the weather comes from, and when it came").arg(name);
    if (age < 1h)
        return tr("%1, %2 min ago").arg(name, QLocale().toString(qlonglong(age.count())));
    const auto hours = std::chrono::floor<std::chrono::hours>(age);
    return tr("%1, %2 h ago").arg(name, QLocale().toString(qlonglong(hours.count())));
}

QString WeatherModel::accessibleText() const
{
    QStringList parts{temperature(), condition(), feelsLike(), place(), range()};
    parts.removeAll(QString());
    for (const QVariant &entry : details()) {
        const auto map = entry.toMap();
        parts.append(map.value(QStringLiteral("name")).toString() + u' ' +
                     map.value(QStringLiteral("value")).toString());
    }
    return parts.join(QStringLiteral(", "));
}

QString WeatherModel::explanation() const
{
    if (hasWeather())
        return {};
    switch (service_.currentAuthStatus()) {
    case AuthorizationStatus::NotDetermined:
        return tr("Nobody has allowed Quillmere yet to know where this machine is.");
    case AuthorizationStatus::Restricted:
        return tr("This machine cannot tell where it is: it has no location service.");
    case AuthorizationStatus::Denied:
        return tr("Quillmere is not allowed to know where this machine is.");
    case AuthorizationStatus::AuthorizedAlways:
        break;
    }
    return tr("No weather has come yet. It is asked for again every 15 minutes.");
}

bool WeatherModel::placeIsTyped() const
{
    return place_.place().has_value();
}

void WeatherModel::setSearching(bool searching)
{
    if (std::exchange(isSearching_, searching) != searching)
        Q_EMIT searchingChanged();
}

void WeatherModel::openSearch()
{
    setPlaces({}, {});
    setSearching(true);
}

void WeatherModel::closeSearch()
{
    typingPause_.cancel();
    search_.cancel();
    setSearching(false);
}

void WeatherModel::search(const QString &text)
{
    const QString name = text.simplified();
    search_.cancel();
    if (name.size() < PlaceSearch::shortestText || name.size() > PlaceSearch::longestText) {
        typingPause_.cancel();
        setPlaces({}, {});
        return;
    }
    typingPause_ = runLoop_.after(typingPause, [this, name] {
        search_.search(name, [this](const PlaceSearch::Result &result) { found(result); });
    });
}

void WeatherModel::found(const PlaceSearch::Result &result)
{
    if (!result)
        setPlaces({}, tr("The search for places did not work: %1")
                          .arg(plainText(result.error(), longestName)));
    else
        setPlaces(*result, result->isEmpty() ? tr("No place of that name") : QString());
}

void WeatherModel::setPlaces(const QList<FoundPlace> &places, const QString &note)
{
    if (places == places_ && note == searchNote_)
        return;
    places_ = places;
    searchNote_ = note;
    Q_EMIT placesChanged();
}

QVariantList WeatherModel::places() const
{
    QVariantList list;
    for (const FoundPlace &place : places_)
        list.append(
            QVariantMap{{QStringLiteral("name"), plainText(place.location.name, longestName)},
                        {QStringLiteral("region"), plainText(place.region, longestName)}});
    return list;
}

void WeatherModel::choosePlace(int index)
{
    if (index < 0 || index >= places_.size())
        return;
    place_.setPlace(places_.at(index).location);
    closeSearch();
}

void WeatherModel::useOwnLocation()
{
    place_.setPlace(std::nullopt);
    closeSearch();
}

} // namespace quillmere
