#include "platform/linux/tray/TrayTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QtEndian>

#include <tuple>

namespace quillmere {

namespace {

template <class... Fields>
QDBusArgument &writeStructure(QDBusArgument &argument, const Fields &...fields)
{
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

template <class... Fields>
const QDBusArgument &readStructure(const QDBusArgument &argument, Fields &...fields)
{
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument;
}

TrayPixmap toTrayPixmap(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{argb.width(), argb.height(), {}};
    const qsizetype rowBytes = qsizetype{4} * argb.width();
    pixmap.pixels.resize(rowBytes * argb.height());
    for (int row = 0; row < argb.height(); ++row)
        qToBigEndian<quint32>(argb.constScanLine(row), argb.width(),
                              pixmap.pixels.data() + row * rowBytes);
    return pixmap;
}

} // namespace

void registerTrayTypes()
{
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<TrayPixmaps>();
    qDBusRegisterMetaType<TrayToolTip>();
    qDBusRegisterMetaType<TrayMenuLayout>();
    qDBusRegisterMetaType<TrayMenuItemProperties>();
    qDBusRegisterMetaType<TrayMenuProperties>();
    qDBusRegisterMetaType<TrayMenuItemPropertyNames>();
    qDBusRegisterMetaType<TrayMenuPropertyNames>();
    qDBusRegisterMetaType<TrayMenuEvent>();
    qDBusRegisterMetaType<TrayMenuEvents>();
    qDBusRegisterMetaType<TrayShortcuts>();
}

TrayPixmaps toTrayPixmaps(const QList<QImage> &images)
{
    TrayPixmaps pixmaps;
    for (const QImage &image : images) {
        if (!image.isNull())
            pixmaps.append(toTrayPixmap(image));
    }
    return pixmaps;
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixmap &pixmap)
{
    return writeStructure(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixmap &pixmap)
{
    return readStructure(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &toolTip)
{
    return writeStructure(argument, toolTip.iconName, toolTip.icon, toolTip.title, toolTip.text);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &toolTip)
{
    return readStructure(argument, toolTip.iconName, toolTip.icon, toolTip.title, toolTip.text);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuLayout &layout)
{
    return writeStructure(argument, layout.id, layout.properties, layout.children);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuLayout &layout)
{
    return readStructure(argument, layout.id, layout.properties, layout.children);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuItemProperties &item)
{
    return writeStructure(argument, item.id, item.properties);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuItemProperties &item)
{
    return readStructure(argument, item.id, item.properties);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuItemPropertyNames &item)
{
    return writeStructure(argument, item.id, item.names);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuItemPropertyNames &item)
{
    return readStructure(argument, item.id, item.names);
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &event)
{
    return writeStructure(argument, event.id, event.type, event.data, event.timestamp);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &event)
{
    return readStructure(argument, event.id, event.type, event.data, event.timestamp);
}

} // namespace quillmere
