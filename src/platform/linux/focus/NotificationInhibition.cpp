#include "platform/linux/focus/NotificationInhibition.h"

#include <QDebug>

namespace quillmere {

namespace {

std::optional<bool> flag(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<bool>())
        return std::nullopt;
    return value.toBool();
}

/// Modes are named by the user; this is the name mako's own manual gives.
std::optional<bool> isAmongModes(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QStringList>())
        return std::nullopt;
    return value.toStringList().contains(QLatin1StringView("do-not-disturb"));
}

struct Teller {
    QLatin1StringView name;
    QLatin1StringView path;
    QLatin1StringView interface;
    QLatin1StringView property;
    std::optional<bool> (*read)(const QVariant &value);
};

constexpr QLatin1StringView serverPath("/org/freedesktop/Notifications");

constexpr Teller tellers[] = {
    {QLatin1StringView("Plasma"), serverPath, QLatin1StringView("org.freedesktop.Notifications"),
     QLatin1StringView("Inhibited"), flag},
    {QLatin1StringView("dunst"), serverPath, QLatin1StringView("org.dunstproject.cmd0"),
     QLatin1StringView("paused"), flag},
    {QLatin1StringView("mako"), QLatin1StringView("/fr/emersion/Mako"),
     QLatin1StringView("fr.emersion.Mako"), QLatin1StringView("Modes"), isAmongModes},
};

} // namespace

NotificationInhibition::NotificationInhibition(const QDBusConnection &sessionBus)
    : sessionBus_(sessionBus)
    , server_(sessionBus, QStringLiteral("org.freedesktop.Notifications"),
              [this](const QString &owner) { serverChanged(owner); })
{
}

void NotificationInhibition::serverChanged(const QString &owner)
{
    properties_.clear();
    tell(std::nullopt);
    if (owner.isEmpty())
        return;
    for (const Teller &teller : tellers)
        properties_.emplace_back(sessionBus_,
                                 BusProperties::Place{.owner = owner,
                                                      .path = teller.path,
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
        if (const auto isOn = teller.read(*told))
            tell(FocusReport{teller.name, *isOn});
        else
            qWarning() << "[Notifications] Ignored as" << teller.property << ":" << *told;
    }
}

} // namespace quillmere
