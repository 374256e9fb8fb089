#pragma once

#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/dbus/ShortcutInbox.h"
#include "platform/linux/shortcuts/PortalRequest.h"

#include <QDBusObjectPath>
#include <QObject>

#include <memory>

namespace quillmere {

/// Key bindings that work in every window, where the desktop's portal has them: every published
/// shortcut is offered to it, the user gives it keys in the desktop's own dialog. A portal without
/// them, or no portal, is nothing to speak of. Never starts the portal; follows its restarts. Main
/// thread only.
///
/// The portal wants to be told who speaks before anything else is asked of it on this connection:
/// construct this before whatever else uses it.
class PortalGlobalShortcuts : public QObject
{
    Q_OBJECT

public:
    /// `shortcuts` must outlive this object.
    PortalGlobalShortcuts(const QDBusConnection &sessionBus, ShortcutInbox &shortcuts);
    ~PortalGlobalShortcuts() override;

private:
    void follow(const QString &owner);
    void introduceOurselves();
    void askVersion();
    void createSession();
    void bindShortcuts(const QList<Shortcut> &shortcuts);
    QDBusMessage callOf(const QString &interface, const char *method) const;
    Q_SLOT void activated(const QDBusMessage &message);

    ShortcutInbox &shortcuts_;
    QDBusObjectPath session_;
    std::unique_ptr<PortalRequest> creation_;
    std::unique_ptr<PortalRequest> binding_;
    BusCalls calls_;
    BusOwner portal_;
    Owner owner_;
};

} // namespace quillmere
