#include "platform/linux/dbus/BusObject.h"

#include "applicationadaptor.h"
#include "islandadaptor.h"
#include "shortcutsadaptor.h"

namespace quillmere {

BusObject::BusObject(RequestInbox &inbox, ShortcutInbox &shortcuts)
    : inbox_(inbox)
    , shortcuts_(shortcuts)
{
    registerShortcutTypes();
    new ApplicationAdaptor(this);
    new IslandAdaptor(this);
    new ShortcutsAdaptor(this);
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

QString BusObject::Perform(const QString &intent, const QVariantMap &parameters)
{
    shortcuts_.answer(*this, [intent, parameters](const auto &requests) -> ShortcutInbox::Answer {
        const auto dialog = requests.perform(intent, parameters);
        if (!dialog)
            return tl::unexpected(Refusal{QDBusError::InvalidArgs, dialog.error()});
        return QVariantList{*dialog};
    });
    return {};
}

QList<TextTriple> BusObject::List()
{
    shortcuts_.answer(*this, [](const auto &requests) {
        TextTriples triples;
        for (const Shortcut &shortcut : requests.list())
            triples.append({shortcut.name, shortcut.title, shortcut.symbol});
        return QVariantList{QVariant::fromValue(triples)};
    });
    return {};
}

void BusObject::answer(const RequestInbox::Outcome &outcome)
{
    if (outcome && calledFromDBus())
        sendErrorReply(outcome->type, outcome->text);
}

} // namespace quillmere
