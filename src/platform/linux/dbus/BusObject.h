#pragma once

#include "platform/linux/dbus/RequestInbox.h"

#include <QDBusContext>
#include <QObject>

namespace quillmere {

/// What is exported at our object path: the calls of org.freedesktop.Application, and as dynamic
/// properties the values of com.quillmere.Island. The interfaces themselves are generated adaptors
/// that call and read this object.
class BusObject : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit BusObject(RequestInbox &inbox);

    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameter,
                        const QVariantMap &platformData);

private:
    void answer(const RequestInbox::Outcome &outcome);

    RequestInbox &inbox_;
};

} // namespace quillmere
