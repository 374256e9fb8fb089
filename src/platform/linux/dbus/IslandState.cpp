#include "platform/linux/dbus/IslandState.h"

#include "platform/linux/dbus/IslandProperties.h"

#include <QDBusMetaType>
#include <QDebug>
#include <QRect>

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr int maximumDepth = 8;

bool canTravel(const QVariant &value, int depth = 0)
{
    const auto inner = [depth](const QVariant &each) { return canTravel(each, depth + 1); };
    if (depth > maximumDepth)
        return false;
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QRect:
        return true;
    case QMetaType::QVariantMap:
        return std::ranges::all_of(value.toMap(), inner);
    case QMetaType::QVariantList:
        return std::ranges::all_of(value.toList(), inner);
    default:
        return false;
    }
}

bool fits(const IslandProperty &property, const QVariant &value)
{
    if (value.typeId() != property.type || !canTravel(value))
        return false;
    if (property.type != QMetaType::QVariantList)
        return true;
    return std::ranges::all_of(value.toList(), [](const QVariant &each) {
        return each.typeId() == QMetaType::QVariantMap;
    });
}

/// A list of dictionaries would travel as a list of variants otherwise.
QVariant toBusValue(const QVariant &value)
{
    if (value.typeId() != QMetaType::QVariantList)
        return value;
    QList<QVariantMap> dictionaries;
    for (const QVariant &each : value.toList())
        dictionaries.append(each.toMap());
    return QVariant::fromValue(dictionaries);
}

} // namespace

IslandState::IslandState(RunLoop &runLoop, QObject &holder)
    : runLoop_(runLoop)
    , holder_(holder)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    for (const IslandProperty &property : islandProperties)
        holder_.setProperty(property.name.latin1(), toBusValue(QVariant(QMetaType(property.type))));
}

void IslandState::publish(const QString &property, const QVariant &value)
{
    const auto known = islandProperty(property);
    if (!known || !fits(*known, value)) {
        qCritical("[Quillmere] \"%s\" cannot be published as %s", qUtf8Printable(property),
                  value.typeName() ? value.typeName() : "nothing");
        return;
    }
    const QVariant current = toBusValue(value);
    if (holder_.property(known->name.latin1()) == current)
        return;
    holder_.setProperty(known->name.latin1(), current);
    if (changed_.isEmpty())
        runLoop_.post(owner_, [this] { announce(); });
    changed_.insert(property);
}

void IslandState::announce()
{
    QVariantMap values;
    for (const QString &name : std::exchange(changed_, {}))
        values.insert(name, holder_.property(name.toLatin1().constData()));
    if (onChanged)
        onChanged(values);
}

} // namespace quillmere
