#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace quillmere {

/// What the user and the machine let us know. The numbers are the ones that are logged.
enum class AuthorizationStatus {
    NotDetermined = 0,
    Restricted = 1, ///< this machine has no location service
    Denied = 2,
    AuthorizedAlways = 3
};

/// A place on earth.
struct Location {
    double latitude = 0;   ///< degrees, -90..90
    double longitude = 0;  ///< degrees, -180..180
    QString name{};        ///< empty: not known, ask the geocoder
    QByteArray timeZone{}; ///< IANA name of the place's time zone; empty: the machine's

    bool operator==(const Location &) const = default;
};

/// Accuracy that is asked for, in metres.
inline constexpr double locationAccuracyKilometer = 1000;

/// Hears of a LocationManager. Nothing is called from within a call to the manager.
class LocationManagerDelegate
{
public:
    virtual ~LocationManagerDelegate() = default;

    /// The status may be the same as before.
    virtual void locationManagerDidChangeAuthorization() = 0;
    virtual void locationManagerDidUpdateLocations(const QList<Location> &locations) = 0;
    virtual void locationManagerDidFailWithError(const QString &description) = 0;
};

/// Tells where the machine is. Main thread only.
class LocationManager
{
public:
    virtual ~LocationManager() = default;

    /// Null to hear nothing more.
    virtual void setDelegate(LocationManagerDelegate *delegate) = 0;
    virtual void setDesiredAccuracy(double metres) = 0;
    virtual AuthorizationStatus authorizationStatus() const = 0;

    /// Asks the user, as far as the system has someone who asks.
    virtual void requestAlwaysAuthorization() = 0;

    /// From now on until stopUpdatingLocation() fixes are reported; at least one, or an error.
    virtual void startUpdatingLocation() = 0;
    virtual void stopUpdatingLocation() = 0;
};

} // namespace quillmere
