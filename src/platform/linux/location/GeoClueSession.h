#pragma once

#include "platform/LocationManager.h"
#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusOwner.h"

#include <QObject>

#include <functional>

namespace quillmere {

/// One stay as a client of GeoClue, from asking for admission to leaving. Main thread only.
class GeoClueSession : public QObject
{
    Q_OBJECT

public:
    struct Events {
        std::function<void()> onAdmitted;
        std::function<void(const Location &)> onLocation;
        std::function<void(const QDBusError &)> onRefused; ///< nothing comes after it
    };

    /// Starts the service if need be. The owner of the name may be learned later; what others send
    /// is not heard. An event may destroy the session.
    GeoClueSession(const QDBusConnection &bus, const BusOwner &service, double accuracy,
                   Events events);
    ~GeoClueSession() override;

private:
    void getClient();
    void setUp(const QString &client);
    void set(const QString &property, const QVariant &value);
    void start();
    void refuse(const QDBusError &error);
    void read(const QString &location);
    Q_SLOT void locationUpdated(const QDBusMessage &message);

    const BusOwner &service_;
    const double accuracy_;
    Events events_;
    QString client_; // object path
    BusCalls calls_;
};

} // namespace quillmere
