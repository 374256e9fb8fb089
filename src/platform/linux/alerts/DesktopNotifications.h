#pragma once

#include "platform/UserNotifications.h"
#include "platform/linux/dbus/BusOwner.h"

#include <QDBusConnection>
#include <QHash>

namespace quillmere {

/// Notifications shown by the session's notification server, which is started if it does not run
/// yet. Main thread only.
class DesktopNotifications : public UserNotifications
{
public:
    explicit DesktopNotifications(const QDBusConnection &sessionBus);

    void deliver(const UserNotification &notification) override;

private:
    void show(const UserNotification &notification, bool hasMarkup);

    QHash<QString, uint> shown_; ///< the numbers that this run of the server gave
    BusCalls calls_;
    BusOwner server_;
};

} // namespace quillmere
