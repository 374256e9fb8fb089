#include "platform/linux/notifications/MonitorConnection.h"

#include "helpers/SessionBus.h"

#include <QTimer>

#include <vector>

namespace quillmere {

namespace {

constexpr int answerLimit = 5'000; // milliseconds

/// An error of libdbus.
class BusError
{
public:
    BusError() { dbus_error_init(&error_); }
    ~BusError() { dbus_error_free(&error_); }
    BusError(const BusError &) = delete;
    BusError &operator=(const BusError &) = delete;

    DBusError *get() { return &error_; }
    QString text() const { return QString::fromUtf8(error_.message); }

private:
    DBusError error_{};
};

int descriptorOf(DBusConnection *connection)
{
    int descriptor = -1;
    dbus_connection_get_unix_fd(connection, &descriptor);
    return descriptor;
}

BusMessage monitorCall(const std::initializer_list<const char *> &rules)
{
    BusMessage call(dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS,
                                                 DBUS_INTERFACE_MONITORING, "BecomeMonitor"));
    const std::vector<const char *> list(rules);
    const char *const *texts = list.data();
    const dbus_uint32_t flags = 0;
    dbus_message_append_args(call.get(), DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &texts,
                             static_cast<int>(list.size()), DBUS_TYPE_UINT32, &flags,
                             DBUS_TYPE_INVALID);
    return call;
}

} // namespace

tl::expected<OwnedBusConnection, QString>
becomeMonitor(const QString &address, const std::initializer_list<const char *> &rules)
{
    BusError error;
    DBusConnection *opened =
        dbus_connection_open_private(address.toUtf8().constData(), error.get());
    if (!opened)
        return tl::unexpected(error.text());
    OwnedBusConnection connection(opened, bus_detail::CloseConnection());
    dbus_connection_set_exit_on_disconnect(opened, FALSE);
    if (!dbus_bus_register(opened, error.get()))
        return tl::unexpected(error.text());
    const BusMessage answer(dbus_connection_send_with_reply_and_block(
        opened, monitorCall(rules).get(), answerLimit, error.get()));
    if (!answer)
        return tl::unexpected(error.text());
    return connection;
}

MonitorConnection::MonitorConnection(OwnedBusConnection connection,
                                     std::function<void(DBusMessage *)> onMessage,
                                     std::function<void()> onLost)
    : connection_(std::move(connection))
    , onMessage_(std::move(onMessage))
    , onLost_(std::move(onLost))
    , notifier_(descriptorOf(connection_.get()), QSocketNotifier::Read)
{
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { read(); });
    // What came with the answer that made it a monitor is in memory already.
    QTimer::singleShot(0, &notifier_, [this] { read(); });
}

void MonitorConnection::read()
{
    const std::weak_ptr<const char> life = life_;
    const OwnedBusConnection connection = connection_;
    dbus_connection_read_write(connection.get(), 0);
    // Taken off the queue, not dispatched: that would answer calls nobody here knows.
    while (const BusMessage message{dbus_connection_pop_message(connection.get())}) {
        onMessage_(message.get());
        if (life.expired())
            return;
    }
    if (dbus_connection_get_is_connected(connection.get()))
        return;
    notifier_.setEnabled(false);
    if (const auto lost = std::exchange(onLost_, nullptr))
        lost();
}

} // namespace quillmere
