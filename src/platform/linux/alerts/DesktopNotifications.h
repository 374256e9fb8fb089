#pragma once

#include "platform/UserNotifications.h"
#include "platform/linux/dbus/BusOwner.h"

#include <QDBusConnection>
#include <QList>

namespace quillmere {

/// Notifications shown by the session's notification server, which is started if it does not run
/// yet. Main thread only.
class DesktopNotifications : public UserNotifications
{
public:
    explicit DesktopNotifications(const QDBusConnection &sessionBus);

    void deliver(const UserNotification &notification) override;

private:
    struct Shown {
        QString identifier;
        uint number = 0; ///< that this run of the server gave
    };

    void show(const UserNotification &notification, bool hasMarkup);
    uint numberOf(const QString &identifier) const;
    void remember(const QString &identifier, uint number);

    QList<Shown> shown_; ///< the last few, the newest at the end
    BusCalls calls_;
    BusOwner server_;
};

} // namespace quillmere
