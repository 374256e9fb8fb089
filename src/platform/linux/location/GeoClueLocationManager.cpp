#include "platform/linux/location/GeoClueLocationManager.h"

namespace quillmere {

GeoClueLocationManager::GeoClueLocationManager(RunLoop &runLoop, OpenBus openBus)
    : runLoop_(runLoop)
    , openBus_(std::move(openBus))
{
}

GeoClueLocationManager::~GeoClueLocationManager() = default;

void GeoClueLocationManager::startUpdatingLocation()
{
    isUpdating_ = true;
    if (lastFound_) { // while permission was asked for
        runLoop_.post(owner_, [this] {
            if (lastFound_)
                found(*lastFound_);
        });
    }
    begin();
}

void GeoClueLocationManager::stopUpdatingLocation()
{
    isUpdating_ = false;
    end();
}

void GeoClueLocationManager::openBus()
{
    if (std::exchange(isOpening_, true))
        return;
    runLoop_.background(owner_, openBus_, [this](const QDBusConnection &bus) {
        isOpening_ = false;
        if (!bus.isConnected()) {
            isWanted_ = false;
            fail(QStringLiteral("no system bus"));
            return decide(AuthorizationStatus::Restricted);
        }
        bus_ = bus;
        service_.emplace(bus, QStringLiteral("org.freedesktop.GeoClue2"),
                         [this](const QString &owner) { serviceChanged(owner); });
        if (isWanted_)
            begin();
    });
}

void GeoClueLocationManager::begin()
{
    isWanted_ = true;
    if (session_)
        return;
    if (!bus_)
        return openBus();
    searchLimit_ = {};
    session_.emplace(
        *bus_, *service_, accuracy_,
        GeoClueSession::Events{.onAdmitted = [this] { admitted(); },
                               .onLocation = [this](const Location &location) { found(location); },
                               .onRefused = [this](const QDBusError &error) { refused(error); }});
}

void GeoClueLocationManager::end()
{
    isWanted_ = false;
    searchLimit_.cancel();
    // Later, as this may come from within one of the session's events.
    runLoop_.post(owner_, [this] {
        if (isWanted_)
            return;
        session_.reset();
        lastFound_.reset();
    });
}

void GeoClueLocationManager::serviceChanged(const QString &owner)
{
    const bool hasEnded = std::exchange(isServiceThere_, !owner.isEmpty()) && owner.isEmpty();
    if (!hasEnded || !session_ || lastFound_)
        return;
    session_.reset();
    const bool wasWanted = std::exchange(isWanted_, false);
    searchLimit_.cancel();
    if (wasWanted)
        fail(QStringLiteral("the location service has ended"));
}

void GeoClueLocationManager::admitted()
{
    searchLimit_ = runLoop_.after(searchLimit, [this] {
        const bool wasUpdating = isUpdating_;
        end();
        if (wasUpdating)
            fail(QStringLiteral("no location was found"));
    });
    if (status_ != AuthorizationStatus::AuthorizedAlways)
        decide(AuthorizationStatus::AuthorizedAlways);
}

void GeoClueLocationManager::refused(const QDBusError &error)
{
    session_.reset();
    isWanted_ = false;
    fail(error.message());
    if (error.type() == QDBusError::AccessDenied)
        decide(AuthorizationStatus::Denied);
    else if (error.type() == QDBusError::ServiceUnknown)
        decide(AuthorizationStatus::Restricted);
}

void GeoClueLocationManager::found(const Location &location)
{
    lastFound_ = location;
    if (isUpdating_)
        searchLimit_.cancel();
    if (isUpdating_ && delegate_ != nullptr)
        delegate_->locationManagerDidUpdateLocations({location});
}

void GeoClueLocationManager::decide(AuthorizationStatus status)
{
    status_ = status;
    if (delegate_ != nullptr)
        delegate_->locationManagerDidChangeAuthorization();
}

void GeoClueLocationManager::fail(const QString &description)
{
    if (delegate_ != nullptr)
        delegate_->locationManagerDidFailWithError(description);
}

} // namespace quillmere
