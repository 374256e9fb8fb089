#pragma once

#include "platform/linux/dbus/BusCalls.h"

#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace quillmere {

/// Follows one property of the island, or all of them, for as long as the bus lives, whether
/// Quillmere runs or not. Values are told when Quillmere is found and when they change.
class PropertyWatch : public QObject
{
    Q_OBJECT

public:
    /// `property` empty: all.
    PropertyWatch(const QDBusConnection &bus, QString property);

    void start();

    std::function<void(const QString &property, const QVariant &value)> onValue;
    std::function<void(const QString &error)> onFailure;

private:
    void setOwner(const QString &owner);
    void readAll();
    void tell(const QVariantMap &values);
    Q_SLOT void propertiesChanged(const QString &interface, const QVariantMap &changed,
                                  const QStringList &invalidated, const QDBusMessage &message);
    Q_SLOT void disconnected();

    BusCalls calls_;
    QString property_;
    QDBusServiceWatcher watcher_;
    QString owner_; // unique name of the Quillmere that runs, empty if none does
    QHash<QString, QByteArray> told_;
};

} // namespace quillmere
