#pragma once

#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/dbus/BusProperties.h"
#include "platform/linux/focus/FocusSource.h"

#include <list>

namespace quillmere {

/// Whether the session's notification server holds back what it is given: Plasma's, dunst and mako
/// each tell so in a property of their own. A mako too old for the property announces no change
/// anywhere, so it is not followed. The server is never started from here. Main thread only.
class NotificationInhibition : public FocusSource
{
public:
    explicit NotificationInhibition(const QDBusConnection &sessionBus);

private:
    void serverChanged(const QString &owner);
    void take(const QVariantMap &properties);

    QDBusConnection sessionBus_;
    std::list<BusProperties> properties_; ///< of the run of the server there is now
    BusOwner server_;
};

} // namespace quillmere
