#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

class QDBusArgument;

/// The compound types of the interfaces by which shortcuts are found, as they travel on the bus.
namespace quillmere {

/// (sss): name, title and symbol of a shortcut; id, text and icon of a runner's action.
struct TextTriple {
    QString first;
    QString second;
    QString third;
};
using TextTriples = QList<TextTriple>;

/// (sssida{sv})
struct RunnerMatch {
    QString id;
    QString text;
    QString icon;
    int type = 0;
    double relevance = 0;
    QVariantMap properties;
};
using RunnerMatches = QList<RunnerMatch>;

/// Makes the types known to the bus library; harmless when called again.
void registerShortcutTypes();

/// The name under which the picture of a symbol is installed for the desktop.
QString installedIcon(const QString &symbol);

QDBusArgument &operator<<(QDBusArgument &argument, const TextTriple &triple);
const QDBusArgument &operator>>(const QDBusArgument &argument, TextTriple &triple);
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match);

} // namespace quillmere

Q_DECLARE_METATYPE(quillmere::TextTriple)
Q_DECLARE_METATYPE(quillmere::RunnerMatch)
