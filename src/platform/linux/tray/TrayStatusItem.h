#pragma once

#include "platform/RunLoop.h"
#include "platform/StatusItem.h"
#include "platform/linux/dbus/BusCalls.h"
#include "platform/linux/tray/TrayItem.h"
#include "platform/linux/tray/TrayMenu.h"

#include <QObject>

#include <functional>
#include <optional>

namespace quillmere {

/// The status item on the session bus. Many desktops have no watcher for such items, or get one
/// late, or a new one; the item registers with each that comes. It has a bus name of its own, so
/// that giving this up takes the item off the bar. Main thread only.
class TrayStatusItem : public QObject, public StatusItem
{
    Q_OBJECT

public:
    /// Draws the icon of a system symbol; no name and no images when there is none.
    using DrawIcon = std::function<TrayIcon(const QString &symbol)>;

    /// Without a bus there is no place for an item and show() does nothing.
    TrayStatusItem(RunLoop &runLoop, const std::optional<QDBusConnection> &bus, DrawIcon drawIcon);
    ~TrayStatusItem() override;

    void show(const StatusItemContent &content) override;
    bool isOnBar() const override { return isOnBar_; }
    void remove() override;

private:
    void goOnBus();
    void listenForWatcher(bool listen);
    void registerItem(int attempt);
    void registrationFailed(const QDBusError &error, int attempt);
    Q_SLOT void watcherChanged(const QString &name, const QString &oldOwner,
                               const QString &newOwner);

    RunLoop &runLoop_;
    DrawIcon drawIcon_;
    QString service_;
    TrayItem item_;
    TrayMenu menu_;
    std::optional<QDBusConnection> bus_;
    std::optional<BusCalls> calls_; ///< while shown
    bool isOnBar_ = false;
    Task retry_;
};

} // namespace quillmere
