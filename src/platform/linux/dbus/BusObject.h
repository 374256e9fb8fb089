#pragma once

#include "platform/linux/dbus/RequestInbox.h"
#include "platform/linux/dbus/ShortcutInbox.h"
#include "platform/linux/dbus/ShortcutTypes.h"

#include <QDBusContext>
#include <QObject>

namespace quillmere {

/// What is exported at our object path: the calls of org.freedesktop.Application and of
/// com.quillmere.Shortcuts, and as dynamic properties the values of com.quillmere.Island. The
/// interfaces themselves are generated adaptors that call and read this object.
class BusObject : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    BusObject(RequestInbox &inbox, ShortcutInbox &shortcuts);

    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameter,
                        const QVariantMap &platformData);

    QString Perform(const QString &intent, const QVariantMap &parameters);
    QList<quillmere::TextTriple> List();

private:
    void answer(const RequestInbox::Outcome &outcome);

    RequestInbox &inbox_;
    ShortcutInbox &shortcuts_;
};

} // namespace quillmere
