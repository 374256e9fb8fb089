#include "platform/linux/alerts/NotificationInhibition.h"

#include <QDebug>

#include <utility>

namespace quillmere {

namespace {

struct Teller {
    QLatin1StringView interface;
    QLatin1StringView property;
};

constexpr Teller tellers[] = {
    {QLatin1StringView("org.freedesktop.Notifications"), QLatin1StringView("Inhibited")},
    {QLatin1StringView("org.dunstproject.cmd0"), QLatin1StringView("paused")}};

} // namespace

NotificationInhibition::NotificationInhibition(const QDBusConnection &sessionBus)
    : sessionBus_(sessionBus)
    , server_(sessionBus, QStringLiteral("org.freedesktop.Notifications"),
              [this](const QString &owner) { serverChanged(owner); })
{
}

Task NotificationInhibition::onChanged(std::function<void(bool)> listener)
{
    return listeners_.add(std::move(listener));
}

void NotificationInhibition::serverChanged(const QString &owner)
{
    properties_.clear();
    isOn_.reset();
    if (owner.isEmpty())
        return;
    for (const Teller &teller : tellers)
        properties_.emplace_back(
            sessionBus_,
            BusProperties::Place{.owner = owner,
                                 .path = QStringLiteral("/org/freedesktop/Notifications"),
                                 .interface = teller.interface,
                                 .mayBeMissing = true},
            [this](const QVariantMap &properties) { take(properties); });
}

void NotificationInhibition::take(const QVariantMap &properties)
{
    for (const Teller &teller : tellers) {
        const auto told = properties.constFind(teller.property);
        if (told == properties.cend())
            continue;
        if (told->metaType() != QMetaType::fromType<bool>()) {
            qWarning() << "[Notifications] Ignored as" << teller.property << ":" << *told;
            continue;
        }
        const bool isOn = told->toBool();
        const auto former = std::exchange(isOn_, isOn);
        if (former && *former != isOn)
            listeners_.notify(isOn);
    }
}

} // namespace quillmere
