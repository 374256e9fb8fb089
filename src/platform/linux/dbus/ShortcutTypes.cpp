#include "platform/linux/dbus/ShortcutTypes.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace quillmere {

void registerShortcutTypes()
{
    qDBusRegisterMetaType<TextTriple>();
    qDBusRegisterMetaType<TextTriples>();
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<RunnerMatches>();
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

QString installedIcon(const QString &symbol)
{
    QString name = symbol;
    name.replace(u'.', u'-');
    return bus::serviceName + u'-' + name + u"-symbolic";
}

QDBusArgument &operator<<(QDBusArgument &argument, const TextTriple &triple)
{
    argument.beginStructure();
    argument << triple.first << triple.second << triple.third;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TextTriple &triple)
{
    argument.beginStructure();
    argument >> triple.first >> triple.second >> triple.third;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.icon << match.type << match.relevance
             << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match)
{
    argument.beginStructure();
    argument >> match.id >> match.text >> match.icon >> match.type >> match.relevance >>
        match.properties;
    argument.endStructure();
    return argument;
}

} // namespace quillmere
