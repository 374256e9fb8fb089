#pragma once

#include "platform/LocationManager.h"
#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"

#include <QVariantMap>

#include <optional>

namespace quillmere {

/// The machine's location, unless the user has typed a place: then that place is where we are, and
/// being asked for it counts as permission. It is kept in the local key "weatherPlace" as a
/// dictionary of name, latitude, longitude and timeZone. Main thread only.
class TypedPlace : public LocationManager, private LocationManagerDelegate
{
public:
    TypedPlace(RunLoop &runLoop, UserDefaults &localDefaults, LocationManager &machine);
    ~TypedPlace() override;

    /// A location from its dictionary; nothing unless it has a name and a coordinate on earth. An
    /// unknown time zone is left out.
    static std::optional<Location> locationIn(const QVariantMap &values);

    const std::optional<Location> &place() const { return place_; }

    /// Remembers the place; nothing forgets it, and the machine's location counts again.
    void setPlace(const std::optional<Location> &place);

    void setDelegate(LocationManagerDelegate *delegate) override { delegate_ = delegate; }
    void setDesiredAccuracy(double metres) override { machine_.setDesiredAccuracy(metres); }
    AuthorizationStatus authorizationStatus() const override;
    void requestAlwaysAuthorization() override;
    void startUpdatingLocation() override;
    void stopUpdatingLocation() override;

private:
    void locationManagerDidChangeAuthorization() override;
    void locationManagerDidUpdateLocations(const QList<Location> &locations) override;
    void locationManagerDidFailWithError(const QString &description) override;

    void use(const std::optional<Location> &place);
    std::optional<Location> stored() const;

    RunLoop &runLoop_;
    UserDefaults &localDefaults_;
    LocationManager &machine_;
    LocationManagerDelegate *delegate_ = nullptr;
    std::optional<Location> place_;
    bool isUpdating_ = false;
    Task edits_;
    Owner owner_;
};

} // namespace quillmere
