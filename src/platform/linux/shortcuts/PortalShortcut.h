#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

class QDBusArgument;

namespace quillmere {

/// (sa{sv}): a key binding, as the desktop's portal takes it.
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};
using PortalShortcuts = QList<PortalShortcut>;

/// Makes the types known to the bus library; harmless when called again.
void registerPortalTypes();

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);

} // namespace quillmere

Q_DECLARE_METATYPE(quillmere::PortalShortcut)
