#include "platform/linux/power/PowerProfiles.h"

#include <QDebug>

#include <utility>

namespace quillmere {

PowerProfiles::PowerProfiles(RunLoop &runLoop, OpenBus openBus)
    : runLoop_(runLoop)
{
    runLoop_.background(owner_, std::move(openBus), [this](const QDBusConnection &bus) {
        if (!bus.isConnected())
            return; // said by who follows the battery
        follow(bus, QStringLiteral("org.freedesktop.UPower.PowerProfiles"),
               QStringLiteral("/org/freedesktop/UPower/PowerProfiles"));
        follow(bus, QStringLiteral("net.hadess.PowerProfiles"),
               QStringLiteral("/net/hadess/PowerProfiles"));
    });
}

Task PowerProfiles::onChanged(std::function<void(bool)> listener)
{
    return listeners_.add(std::move(listener));
}

void PowerProfiles::follow(const QDBusConnection &bus, const QString &name, const QString &path)
{
    Service &service = services_.emplace_back();
    service.owner.emplace(bus, name, [this, &service, bus, name, path](const QString &owner) {
        service.properties.reset();
        if (owner.isEmpty())
            return;
        service.properties = std::make_unique<BusProperties>(
            bus, BusProperties::Place{.owner = owner, .path = path, .interface = name},
            [this](const QVariantMap &properties) { take(properties); });
    });
}

void PowerProfiles::take(const QVariantMap &properties)
{
    const auto profile = properties.constFind(QStringLiteral("ActiveProfile"));
    if (profile == properties.cend())
        return;
    if (profile->metaType() != QMetaType::fromType<QString>()) {
        qWarning() << "[Battery] Ignored as a power profile:" << *profile;
        return;
    }
    const bool isOn = profile->toString() == QLatin1StringView("power-saver");
    const auto former = std::exchange(isOn_, isOn);
    if (former && *former != isOn)
        listeners_.notify(isOn);
}

} // namespace quillmere
