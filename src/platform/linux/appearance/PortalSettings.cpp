#include "platform/linux/appearance/PortalSettings.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDBusArgument>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr Duration startLimit = 30s;
constexpr int deepestWrapping = 4;

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// The value itself: some portals wrap it more than once.
QVariant unwrapped(QVariant value)
{
    for (int depth = 0; depth < deepestWrapping && value.canConvert<QDBusVariant>(); ++depth)
        value = value.value<QDBusVariant>().variant();
    return value;
}

bool isSettings(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QDBusArgument>() &&
           value.value<QDBusArgument>().currentSignature() == QLatin1StringView("a{sa{sv}}");
}

} // namespace

PortalSettings::PortalSettings(const QDBusConnection &connection, QStringList namespaces,
                               std::function<void()> onChanged)
    : namespaces_(std::move(namespaces))
    , onChanged_(std::move(onChanged))
    , calls_(connection)
    , owner_(connection, portalName, [this](const QString &owner) { follow(owner); })
{
    // Without a sender, since the library waits for the bus to learn who has a name. Anyone can
    // send such a signal, so it is checked when it comes.
    QDBusConnection bus = connection;
    bus.connect({}, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant, QDBusMessage)));
}

void PortalSettings::follow(const QString &owner)
{
    if (owner.isEmpty())
        return startPortal();
    // All at once: a missing key is no error then, and the oldest portals answer it like the
    // newest.
    auto question = QDBusMessage::createMethodCall(owner, portalPath, settingsInterface,
                                                   QStringLiteral("ReadAll"));
    question << namespaces_;
    calls_.call(question, answerLimit, [this](const BusReply &reply) { take(reply); });
}

void PortalSettings::startPortal()
{
    if (std::exchange(hasTriedToStart_, true))
        return; // it has crashed or was ended: whoever did that decides when it comes back
    auto request = QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath, bus::daemonName,
                                                  QStringLiteral("StartServiceByName"));
    request << portalName << 0U;
    calls_.call(request, startLimit, [](const BusReply &) {}); // its new owner is told anyway
}

void PortalSettings::take(const BusReply &reply)
{
    if (!reply)
        return; // a portal without settings, or one that went away: what is known stays
    if (!isSettings(reply->value(0))) {
        qWarning("[Quillmere] The desktop portal's settings have an unknown form");
        return;
    }
    values_ = qdbus_cast<SettingsByNamespace>(reply->value(0));
    for (auto &settings : values_) {
        for (auto &value : settings)
            value = unwrapped(value);
    }
    onChanged_();
}

void PortalSettings::settingChanged(const QString &settings, const QString &key,
                                    const QDBusVariant &value, const QDBusMessage &message)
{
    if (message.service() != owner_.name() || !namespaces_.contains(settings))
        return;
    values_[settings][key] = unwrapped(value.variant());
    onChanged_();
}

} // namespace quillmere
