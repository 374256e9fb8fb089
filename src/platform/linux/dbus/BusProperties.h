#pragma once

#include "platform/linux/dbus/BusCalls.h"

#include <QObject>
#include <QVariantMap>

#include <functional>

namespace quillmere {

/// Follows the properties of one interface of one object, as one run of a service tells them. Main
/// thread only.
class BusProperties : public QObject
{
    Q_OBJECT

public:
    struct Place {
        QString owner; ///< the service's unique name, so that nobody else is believed
        QString path;
        QString interface;
        bool mayBeMissing = false; ///< nothing is said of an object without it
    };

    /// `onTold` gets every property once the service has answered, and later on the changed ones.
    /// An object that does not answer is asked again when it tells of a change.
    BusProperties(const QDBusConnection &bus, Place place,
                  std::function<void(const QVariantMap &properties)> onTold);

private:
    void readAll();

    Q_SLOT void propertiesChanged(const QDBusMessage &message);

    const Place place_;
    std::function<void(const QVariantMap &)> onTold_;
    bool isRead_ = false;
    BusCalls calls_;
};

} // namespace quillmere
