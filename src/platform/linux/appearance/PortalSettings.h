#pragma once

#include "platform/linux/dbus/BusOwner.h"

#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace quillmere {

/// Settings of the desktop, by namespace and key, as its portal tells them.
using SettingsByNamespace = QMap<QString, QVariantMap>;

/// Keeps a copy of some of the desktop's settings, read through the portal that every desktop has.
/// Starts the portal if it can be started; when it is gone, the copy stays; when it is back, it is
/// read again. Main thread only.
class PortalSettings : public QObject
{
    Q_OBJECT

public:
    /// `onChanged`: something was read or has changed.
    PortalSettings(const QDBusConnection &connection, QStringList namespaces,
                   std::function<void()> onChanged);

    const SettingsByNamespace &values() const { return values_; }

private:
    void follow(const QString &owner);
    void startPortal();
    void take(const BusReply &reply);
    Q_SLOT void settingChanged(const QString &settings, const QString &key,
                               const QDBusVariant &value, const QDBusMessage &message);

    QStringList namespaces_;
    std::function<void()> onChanged_;
    SettingsByNamespace values_;
    bool hasTriedToStart_ = false;
    BusCalls calls_;
    BusOwner owner_;
};

} // namespace quillmere
