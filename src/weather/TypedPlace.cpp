#include "weather/TypedPlace.h"

#include <QTimeZone>

#include <cmath>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype longestName = 100;
constexpr double mostLatitude = 90;
constexpr double mostLongitude = 180;

const QString &placeKey()
{
    static const QString key = u"weatherPlace"_s;
    return key;
}

std::optional<double> degrees(const QVariant &value, double most)
{
    const bool isNumber =
        value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong;
    if (!isNumber || !(std::abs(value.toDouble()) <= most))
        return std::nullopt;
    return value.toDouble();
}

} // namespace

std::optional<Location> TypedPlace::locationIn(const QVariantMap &values)
{
    const auto latitude = degrees(values.value(u"latitude"_s), mostLatitude);
    const auto longitude = degrees(values.value(u"longitude"_s), mostLongitude);
    const QString name = values.value(u"name"_s).toString().simplified().left(longestName);
    if (!latitude || !longitude || name.isEmpty())
        return std::nullopt;
    const QByteArray zone = values.value(u"timeZone"_s).toString().toLatin1();
    return Location{*latitude, *longitude, name,
                    QTimeZone::isTimeZoneIdAvailable(zone) ? zone : QByteArray()};
}

TypedPlace::TypedPlace(RunLoop &runLoop, UserDefaults &localDefaults, LocationManager &machine)
    : runLoop_(runLoop)
    , localDefaults_(localDefaults)
    , machine_(machine)
    , place_(stored())
    , edits_(localDefaults.onExternalChange([this](const QStringList &keys) {
        if (keys.contains(placeKey()))
            use(stored());
    }))
{
    machine_.setDelegate(this);
}

TypedPlace::~TypedPlace()
{
    machine_.setDelegate(nullptr);
}

std::optional<Location> TypedPlace::stored() const
{
    return locationIn(localDefaults_.object(placeKey()).toMap());
}

void TypedPlace::setPlace(const std::optional<Location> &place)
{
    if (place)
        localDefaults_.setObject(
            placeKey(), QVariantMap{{u"name"_s, place->name},
                                    {u"latitude"_s, place->latitude},
                                    {u"longitude"_s, place->longitude},
                                    {u"timeZone"_s, QString::fromLatin1(place->timeZone)}});
    else
        localDefaults_.removeObject(placeKey());
    use(place);
}

void TypedPlace::use(const std::optional<Location> &place)
{
    if (place == place_)
        return;
    place_ = place;
    stopUpdatingLocation();
    // Nobody has asked while a place was typed; to forget it is to want the machine's.
    if (!place_ && machine_.authorizationStatus() == AuthorizationStatus::NotDetermined)
        machine_.requestAlwaysAuthorization();
    runLoop_.post(owner_, [this] {
        if (delegate_ != nullptr)
            delegate_->locationManagerDidChangeAuthorization();
    });
}

AuthorizationStatus TypedPlace::authorizationStatus() const
{
    return place_ ? AuthorizationStatus::AuthorizedAlways : machine_.authorizationStatus();
}

void TypedPlace::requestAlwaysAuthorization()
{
    if (!place_)
        machine_.requestAlwaysAuthorization();
}

void TypedPlace::startUpdatingLocation()
{
    isUpdating_ = true;
    if (!place_)
        return machine_.startUpdatingLocation();
    runLoop_.post(owner_, [this] {
        if (delegate_ != nullptr && isUpdating_ && place_)
            delegate_->locationManagerDidUpdateLocations({*place_});
    });
}

void TypedPlace::stopUpdatingLocation()
{
    isUpdating_ = false;
    machine_.stopUpdatingLocation();
}

void TypedPlace::locationManagerDidChangeAuthorization()
{
    if (delegate_ != nullptr && !place_)
        delegate_->locationManagerDidChangeAuthorization();
}

void TypedPlace::locationManagerDidUpdateLocations(const QList<Location> &locations)
{
    if (delegate_ != nullptr && !place_)
        delegate_->locationManagerDidUpdateLocations(locations);
}

void TypedPlace::locationManagerDidFailWithError(const QString &description)
{
    if (delegate_ != nullptr && !place_)
        delegate_->locationManagerDidFailWithError(description);
}

} // namespace quillmere
