#pragma once

#include "platform/LocationManager.h"
#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/location/GeoClueSession.h"

#include <QDBusConnection>

#include <functional>
#include <optional>

namespace quillmere {

/// Where GeoClue says we are. Whether we may know is only learned by asking: its agent refusing us
/// is a denial. Without an agent nobody decides, and the next request asks again. We are a client
/// only as long as somebody wants a location, so that the service can go to sleep. Main thread
/// only.
class GeoClueLocationManager : public LocationManager
{
public:
    using OpenBus = std::function<QDBusConnection()>;

    /// A search that has found nothing until then is given up, as it keeps the radios busy.
    static constexpr Duration searchLimit = std::chrono::minutes(1);

    /// `openBus` is called on a background thread at the first request, for connecting waits for
    /// the bus.
    explicit GeoClueLocationManager(RunLoop &runLoop,
                                    OpenBus openBus = &QDBusConnection::systemBus);
    ~GeoClueLocationManager() override;

    void setDelegate(LocationManagerDelegate *delegate) override { delegate_ = delegate; }
    void setDesiredAccuracy(double metres) override { accuracy_ = metres; }
    AuthorizationStatus authorizationStatus() const override { return status_; }
    void requestAlwaysAuthorization() override { begin(); }
    void startUpdatingLocation() override;
    void stopUpdatingLocation() override;

private:
    void openBus();
    void begin();
    void end();
    void serviceChanged(const QString &owner);
    void admitted();
    void refused(const QDBusError &error);
    void found(const Location &location);
    void decide(AuthorizationStatus status);
    void fail(const QString &description);

    RunLoop &runLoop_;
    OpenBus openBus_;
    LocationManagerDelegate *delegate_ = nullptr;
    double accuracy_ = locationAccuracyKilometer;
    AuthorizationStatus status_ = AuthorizationStatus::NotDetermined;
    bool isOpening_ = false;
    bool isUpdating_ = false;
    bool isServiceThere_ = false;
    bool isWanted_ = false; ///< there is or will be a session
    std::optional<QDBusConnection> bus_;
    std::optional<BusOwner> service_;
    std::optional<GeoClueSession> session_;
    std::optional<Location> lastFound_; ///< of this session
    Task searchLimit_;
    Owner owner_;
};

} // namespace quillmere
