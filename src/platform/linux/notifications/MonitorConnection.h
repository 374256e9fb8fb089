#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <dbus/dbus.h>

#include <tl/expected.hpp>

#include <functional>
#include <memory>

namespace quillmere {

using OwnedBusConnection = std::shared_ptr<DBusConnection>;

/// A connection to the bus at `address` that is shown the calls which match `rules`, and nothing
/// else. Waits for the bus, so not for the main thread. The error is a text for people.
tl::expected<OwnedBusConnection, QString>
becomeMonitor(const QString &address, const std::initializer_list<const char *> &rules);

/// Hands over what such a connection is shown. It never sends: a monitor that answers is thrown off
/// the bus. Main thread only.
class MonitorConnection
{
public:
    /// `onLost` is called once, when the bus is gone. Either may destroy this object. Nothing is
    /// called from within the constructor.
    MonitorConnection(OwnedBusConnection connection, std::function<void(DBusMessage *)> onMessage,
                      std::function<void()> onLost);

private:
    void read();

    OwnedBusConnection connection_;
    std::function<void(DBusMessage *)> onMessage_;
    std::function<void()> onLost_;
    QSocketNotifier notifier_;
    std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

} // namespace quillmere
