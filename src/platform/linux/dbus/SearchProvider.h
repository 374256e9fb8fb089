#pragma once

#include "platform/linux/dbus/ShortcutInbox.h"

#include <QDBusContext>
#include <QObject>

namespace quillmere {

/// The shortcuts for the search of the GNOME shell, as org.gnome.Shell.SearchProvider2; called by
/// the generated adaptor. Main thread only.
class SearchProvider : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit SearchProvider(ShortcutInbox &inbox);

    QStringList GetInitialResultSet(const QStringList &terms);
    QStringList GetSubsearchResultSet(const QStringList &previousResults, const QStringList &terms);
    QList<QVariantMap> GetResultMetas(const QStringList &identifiers);
    void ActivateResult(const QString &identifier, const QStringList &terms, uint timestamp);
    void LaunchSearch(const QStringList &terms, uint timestamp);

private:
    ShortcutInbox &inbox_;
};

} // namespace quillmere
