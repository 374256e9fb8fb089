#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusCalls.h"

#include <QDBusServiceWatcher>
#include <QHash>

#include <functional>

namespace quillmere {

/// Follows which players are on the bus. Each is told by its name without the common beginning.
/// Main thread only.
class MprisPlayers
{
public:
    /// `onChanged` gets a player's new unique name, empty when it is gone; never from within the
    /// constructor.
    MprisPlayers(RunLoop &runLoop, const QDBusConnection &bus,
                 std::function<void(const QString &suffix, const QString &owner)> onChanged);

private:
    void ask();
    void askOwner(const QString &name);
    void failed(const QDBusError &error);
    void set(const QString &name, const QString &owner);

    RunLoop &runLoop_;
    std::function<void(const QString &, const QString &)> onChanged_;
    QHash<QString, QString> owners_;
    BusCalls calls_;
    QDBusServiceWatcher watcher_;
    Duration retryDelay_;
    Task retry_;
};

} // namespace quillmere
