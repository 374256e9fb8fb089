#include "ctl/BusJson.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillmere {

namespace {

QJsonValue readElement(const QDBusArgument &argument);

QJsonArray readArray(const QDBusArgument &argument)
{
    QJsonArray array;
    argument.beginArray();
    while (!argument.atEnd())
        array.append(readElement(argument));
    argument.endArray();
    return array;
}

QJsonArray readStructure(const QDBusArgument &argument)
{
    QJsonArray array;
    argument.beginStructure();
    while (!argument.atEnd())
        array.append(readElement(argument));
    argument.endStructure();
    return array;
}

QJsonObject readMap(const QDBusArgument &argument)
{
    QJsonObject object;
    argument.beginMap();
    while (!argument.atEnd()) {
        argument.beginMapEntry();
        const QString key = readElement(argument).toVariant().toString();
        object.insert(key, readElement(argument));
        argument.endMapEntry();
    }
    argument.endMap();
    return object;
}

QJsonValue readElement(const QDBusArgument &argument)
{
    switch (argument.currentType()) {
    case QDBusArgument::BasicType:
    case QDBusArgument::VariantType:
        return toJson(argument.asVariant());
    case QDBusArgument::ArrayType:
        return readArray(argument);
    case QDBusArgument::StructureType:
        return readStructure(argument);
    case QDBusArgument::MapType:
        return readMap(argument);
    default:
        return {};
    }
}

QJsonObject toObject(const QVariantMap &values)
{
    QJsonObject object;
    for (auto each = values.begin(); each != values.end(); ++each)
        object.insert(each.key(), toJson(each.value()));
    return object;
}

} // namespace

QJsonValue toJson(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantMap)
        return toObject(value.toMap());
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return toJson(value.value<QDBusVariant>().variant());
    if (value.metaType() == QMetaType::fromType<QDBusArgument>())
        return readElement(value.value<QDBusArgument>());
    if (value.typeId() == QMetaType::QVariantList) {
        QJsonArray array;
        for (const QVariant &each : value.toList())
            array.append(toJson(each));
        return array;
    }
    return QJsonValue::fromVariant(value);
}

QByteArray toJsonLine(const QVariant &value)
{
    // A document is an object or an array, so a plain value travels inside one.
    const QByteArray array =
        QJsonDocument(QJsonArray{toJson(value)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace quillmere
