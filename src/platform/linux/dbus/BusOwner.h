#pragma once

#include "platform/linux/dbus/BusCalls.h"

#include <QDBusServiceWatcher>

#include <functional>

namespace quillmere {

/// Follows who has a well-known name on a bus, through restarts, without ever making the caller
/// wait. Talking to the unique name it tells cannot start a service. Main thread only.
class BusOwner
{
public:
    /// Asks at once and never starts the service. `onChanged` gets the unique name, or an empty
    /// one; the first time when the bus has answered, later on changes only.
    BusOwner(const QDBusConnection &connection, const QString &name,
             std::function<void(const QString &owner)> onChanged);

    /// The unique name; empty when nobody has the name or the bus has not answered yet.
    const QString &name() const { return owner_; }

private:
    void set(const QString &owner);

    std::function<void(const QString &)> onChanged_;
    QString owner_;
    bool isKnown_ = false;
    BusCalls calls_;
    QDBusServiceWatcher watcher_;
};

} // namespace quillmere
