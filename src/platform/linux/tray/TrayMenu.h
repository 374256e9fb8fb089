#pragma once

#include "platform/RunLoop.h"
#include "platform/StatusItem.h"
#include "platform/linux/tray/TrayTypes.h"

#include <QDBusContext>
#include <QObject>

#include <vector>

namespace quillmere {

/// The menu of the status item as com.canonical.dbusmenu: one level, the entries numbered from 1
/// below the root 0. Callers may be anything; an id that is not ours gets an error and does
/// nothing. The interface itself is a generated adaptor that calls and reads this object. Main
/// thread only.
class TrayMenu : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit TrayMenu(RunLoop &runLoop);

    void setEntries(std::vector<StatusMenuEntry> entries);

    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   TrayMenuLayout &layout);
    TrayMenuProperties GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const TrayMenuEvents &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    void
    ItemsPropertiesUpdated(const QList<quillmere::TrayMenuItemProperties> &updatedProperties,
                           const QList<quillmere::TrayMenuItemPropertyNames> &removedProperties);
    void ItemActivationRequested(int id, uint timestamp);

private:
    bool contains(int id) const;
    bool mayUse(int id); ///< else answers the caller with an error
    QVariantMap properties(int id, const QStringList &names) const;
    void handle(int id, const QString &eventId);
    void perform(int id);

    RunLoop &runLoop_;
    std::vector<StatusMenuEntry> entries_;
    uint revision_ = 0;
    Owner owner_;
};

} // namespace quillmere
