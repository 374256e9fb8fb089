#include "platform/linux/shortcuts/PortalGlobalShortcuts.h"

#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/shortcuts/PortalShortcut.h"

#include <QDBusVariant>
#include <QDebug>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString registryInterface = QStringLiteral("org.freedesktop.host.portal.Registry");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");

/// A text by its type, an object path by mistake of some portals.
QDBusObjectPath sessionPath(const QVariant &value)
{
    if (value.canConvert<QDBusObjectPath>())
        return value.value<QDBusObjectPath>();
    return QDBusObjectPath(value.toString());
}

PortalShortcuts toPortal(const QList<Shortcut> &shortcuts)
{
    PortalShortcuts bindings;
    for (const Shortcut &shortcut : shortcuts)
        bindings.append({shortcut.action, {{QStringLiteral("description"), shortcut.title}}});
    return bindings;
}

} // namespace

PortalGlobalShortcuts::PortalGlobalShortcuts(const QDBusConnection &sessionBus,
                                             ShortcutInbox &shortcuts)
    : shortcuts_(shortcuts)
    , calls_(sessionBus)
    , portal_(sessionBus, portalName, [this](const QString &owner) { follow(owner); })
{
    registerPortalTypes();
}

PortalGlobalShortcuts::~PortalGlobalShortcuts()
{
    if (session_.path().isEmpty())
        return;
    calls_.connection().send(QDBusMessage::createMethodCall(
        portal_.name(), session_.path(), sessionInterface, QStringLiteral("Close")));
}

void PortalGlobalShortcuts::follow(const QString &owner)
{
    creation_.reset();
    binding_.reset();
    session_ = {};
    if (!owner.isEmpty())
        introduceOurselves();
}

QDBusMessage PortalGlobalShortcuts::callOf(const QString &interface, const char *method) const
{
    return QDBusMessage::createMethodCall(portal_.name(), portalPath, interface,
                                          QString::fromLatin1(method));
}

void PortalGlobalShortcuts::introduceOurselves()
{
    auto call = callOf(registryInterface, "Register");
    call << QString(bus::serviceName) << QVariantMap();
    // Portals that do not ask who we are can guess it.
    calls_.call(call, answerLimit, [](const BusReply &) {});
    askVersion();
}

void PortalGlobalShortcuts::askVersion()
{
    auto call = callOf(bus::propertiesInterface, "Get");
    call << shortcutsInterface << QStringLiteral("version");
    calls_.call(call, answerLimit, [this, owner = portal_.name()](const BusReply &reply) {
        if (!reply || owner != portal_.name())
            return;
        if (reply->value(0).value<QDBusVariant>().variant().toUInt() >= 1)
            createSession();
    });
}

void PortalGlobalShortcuts::createSession()
{
    const QVariantMap options{
        {QStringLiteral("session_handle_token"), QStringLiteral("quillmere")}};
    creation_ = std::make_unique<PortalRequest>(
        calls_.connection(), callOf(shortcutsInterface, "CreateSession"), options,
        [this](const PortalRequest::Result &result) {
            if (!result) {
                qWarning("[Shortcuts] The desktop has no key bindings for us: %s",
                         qUtf8Printable(result.error()));
                return;
            }
            session_ = sessionPath(result->value(QStringLiteral("session_handle")));
            QDBusConnection connection = calls_.connection();
            connection.connect(portal_.name(), portalPath, shortcutsInterface,
                               QStringLiteral("Activated"), this, SLOT(activated(QDBusMessage)));
            shortcuts_.take([this, reference = owner_.reference(),
                             session = session_](const ShortcutRequests &requests) {
                if (!reference.expired() && session == session_)
                    bindShortcuts(requests.list());
            });
        });
}

void PortalGlobalShortcuts::bindShortcuts(const QList<Shortcut> &shortcuts)
{
    auto call = callOf(shortcutsInterface, "BindShortcuts");
    call << QVariant::fromValue(session_) << QVariant::fromValue(toPortal(shortcuts)) << QString();
    binding_ = std::make_unique<PortalRequest>(
        calls_.connection(), call, QVariantMap(), [](const PortalRequest::Result &result) {
            if (!result)
                qWarning("[Shortcuts] The desktop did not bind any keys: %s",
                         qUtf8Printable(result.error()));
        });
}

void PortalGlobalShortcuts::activated(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.value(0).value<QDBusObjectPath>() != session_)
        return;
    const QString action = arguments.value(1).toString();
    shortcuts_.take([action](const ShortcutRequests &requests) { requests.run(action); });
}

} // namespace quillmere
