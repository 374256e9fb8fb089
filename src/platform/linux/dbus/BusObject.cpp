#include "platform/linux/dbus/BusObject.h"

#include "applicationadaptor.h"
#include "islandadaptor.h"

namespace quillmere {

BusObject::BusObject(RequestInbox &inbox)
    : inbox_(inbox)
{
    new ApplicationAdaptor(this);
    new IslandAdaptor(this);
}

void BusObject::Activate(const QVariantMap & /*platformData*/)
{
    answer(inbox_.activate());
}

void BusObject::Open(const QStringList &uris, const QVariantMap & /*platformData*/)
{
    answer(inbox_.open(uris));
}

void BusObject::ActivateAction(const QString &action, const QVariantList &parameter,
                               const QVariantMap & /*platformData*/)
{
    answer(inbox_.activateAction(action, parameter));
}

void BusObject::answer(const RequestInbox::Outcome &outcome)
{
    if (outcome && calledFromDBus())
        sendErrorReply(outcome->type, outcome->text);
}

} // namespace quillmere
