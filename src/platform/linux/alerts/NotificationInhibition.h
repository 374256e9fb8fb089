#pragma once

#include "platform/FocusState.h"
#include "platform/Listeners.h"
#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/dbus/BusProperties.h"

#include <list>

namespace quillmere {

/// Whether the session's notification server holds back what it is given: Plasma's, and dunst, each
/// tell so in a property of their own. The server is never started from here. Main thread only.
class NotificationInhibition : public FocusState
{
public:
    explicit NotificationInhibition(const QDBusConnection &sessionBus);

    std::optional<bool> isOn() const override { return isOn_; }
    Task onChanged(std::function<void(bool isOn)> listener) override;

private:
    void serverChanged(const QString &owner);
    void take(const QVariantMap &properties);

    QDBusConnection sessionBus_;
    std::optional<bool> isOn_;
    Listeners<bool> listeners_;
    std::list<BusProperties> properties_; ///< of the run of the server there is now
    BusOwner server_;
};

} // namespace quillmere
