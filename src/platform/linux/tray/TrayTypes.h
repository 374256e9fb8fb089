#pragma once

#include <QByteArray>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QDBusArgument;

/// The compound types of the two tray interfaces, as they travel on the bus.
namespace quillmere {

/// (iiay): ARGB32 pixels in network byte order.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using TrayPixmaps = QList<TrayPixmap>;

/// (sa(iiay)ss)
struct TrayToolTip {
    QString iconName;
    TrayPixmaps icon;
    QString title;
    QString text;
};

/// (ia{sv}av): the children are layouts in variants.
struct TrayMenuLayout {
    int id = 0;
    QVariantMap properties;
    QVariantList children;
};

/// (ia{sv})
struct TrayMenuItemProperties {
    int id = 0;
    QVariantMap properties;
};
using TrayMenuProperties = QList<TrayMenuItemProperties>;

/// (ias)
struct TrayMenuItemPropertyNames {
    int id = 0;
    QStringList names;
};
using TrayMenuPropertyNames = QList<TrayMenuItemPropertyNames>;

/// (isvu)
struct TrayMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    uint timestamp = 0;
};
using TrayMenuEvents = QList<TrayMenuEvent>;

/// aas: each a list of modifiers and the key.
using TrayShortcuts = QList<QStringList>;

/// Makes the types known to the bus library; harmless when called again.
void registerTrayTypes();

/// Images without pixels are left out.
TrayPixmaps toTrayPixmaps(const QList<QImage> &images);

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &toolTip);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuItemProperties &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuItemProperties &item);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuItemPropertyNames &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuItemPropertyNames &item);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &event);

} // namespace quillmere

Q_DECLARE_METATYPE(quillmere::TrayPixmap)
Q_DECLARE_METATYPE(quillmere::TrayToolTip)
Q_DECLARE_METATYPE(quillmere::TrayMenuLayout)
Q_DECLARE_METATYPE(quillmere::TrayMenuItemProperties)
Q_DECLARE_METATYPE(quillmere::TrayMenuItemPropertyNames)
Q_DECLARE_METATYPE(quillmere::TrayMenuEvent)
