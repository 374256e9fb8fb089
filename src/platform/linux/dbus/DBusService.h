#pragma once

#include "platform/linux/dbus/BusObject.h"
#include "platform/linux/dbus/IslandState.h"
#include "platform/linux/dbus/LaunchRequest.h"
#include "platform/linux/dbus/PlasmaRunner.h"
#include "platform/linux/dbus/SearchProvider.h"
#include "platform/linux/dbus/ShortcutInbox.h"
#include "platform/linux/dbus/SingleInstance.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <optional>

namespace quillmere {

/// Quillmere on the session bus: one instance per session, remote control, shortcuts, published
/// state. Works without a bus as well; then nobody hears what is published. Main thread only.
class DBusService : public QObject
{
    Q_OBJECT

public:
    enum class Role {
        Primary,   ///< this is the running Quillmere
        Secondary, ///< another one runs and has been asked to do what this one was started for
        NoBus      ///< nobody can tell: run without a bus
    };
    using OpenBus = std::function<QDBusConnection()>;

    /// `openBus` is called on a background thread, for connecting waits for the bus.
    explicit DBusService(RunLoop &runLoop, OpenBus openBus = &QDBusConnection::sessionBus);
    ~DBusService() override;

    /// Connects, exports, claims the name; `done` gets the outcome once, never from within start().
    /// The URIs of `request` go to the handlers of remoteControl() unless another instance got
    /// them.
    void start(const LaunchRequest &request, std::function<void(Role)> done);

    /// Gives the name back so that the next start comes first; call before quitting. When `done`
    /// runs (after 1 s at worst), callers have their answers.
    void stop(std::function<void()> done);

    RemoteControl &remoteControl() { return inbox_; }
    StatePublisher &statePublisher() { return state_; }
    ShortcutInbox &shortcuts() { return shortcuts_; }

    /// The session bus, for what else is offered there; nothing before start() is done, without a
    /// bus, and after it has died.
    const std::optional<QDBusConnection> &connection() const { return connection_; }

private:
    void useBus(const QDBusConnection &connection);
    void watchBus();
    void finish(Role role);
    void announce(const QVariantMap &changed);
    Q_SLOT void nameLost(const QString &name);
    Q_SLOT void disconnected();

    RunLoop &runLoop_;
    OpenBus openBus_;
    RequestInbox inbox_;
    ShortcutInbox shortcuts_;
    BusObject object_;
    SearchProvider searchProvider_;
    PlasmaRunner runner_;
    IslandState state_;
    std::optional<QDBusConnection> connection_;
    std::optional<SingleInstance> instance_;
    LaunchRequest request_;
    std::function<void(Role)> done_;
    bool isReleasing_ = false;
    Task openLimit_;
    Owner owner_;
};

} // namespace quillmere
