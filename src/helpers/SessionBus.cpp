#include "helpers/SessionBus.h"

#include <cstdlib>
#include <filesystem>

namespace quillmere {

namespace {

constexpr int timeLimit = 1500; // milliseconds

/// Empty if there is none: looking for one as the library would starts a program.
std::string busAddress()
{
    if (const char *address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address && *address)
        return address;
    const char *runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::string socket = std::string(runtime ? runtime : "") + "/bus";
    std::error_code error;
    return runtime && std::filesystem::exists(socket, error) ? "unix:path=" + socket
                                                             : std::string();
}

} // namespace

SessionBus::SessionBus()
{
    const std::string address = busAddress();
    if (address.empty())
        return;
    connection_.reset(dbus_connection_open_private(address.c_str(), nullptr));
    if (connection_)
        dbus_connection_set_exit_on_disconnect(connection_.get(), FALSE);
    if (connection_ && !dbus_bus_register(connection_.get(), nullptr))
        connection_.reset();
}

BusMessage SessionBus::call(const std::string &service, const Method &method,
                            std::initializer_list<const char *> arguments) const
{
    if (!connection_)
        return nullptr;
    const BusMessage call(dbus_message_new_method_call(service.c_str(), method.path,
                                                       method.interface, method.member));
    if (!call)
        return nullptr;
    dbus_message_set_auto_start(call.get(), FALSE);
    for (const char *argument : arguments)
        dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &argument, DBUS_TYPE_INVALID);
    return BusMessage(dbus_connection_send_with_reply_and_block(connection_.get(), call.get(),
                                                                timeLimit, nullptr));
}

std::vector<std::string> SessionBus::namesLike(const std::string &name) const
{
    std::vector<std::string> names;
    const auto answer =
        call(DBUS_SERVICE_DBUS, {DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "ListNames"}, {});
    for (auto entry = BusValues(answer.get()).inside(); !entry.isAtEnd(); entry.next()) {
        const std::string found = entry.text();
        if (found == name || found.starts_with(name + '.') || found.starts_with(name + '-'))
            names.push_back(found);
    }
    return names;
}

unsigned SessionBus::processOf(const std::string &service) const
{
    dbus_uint32_t process = 0;
    const auto answer =
        call(DBUS_SERVICE_DBUS, {DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "GetConnectionUnixProcessID"},
             {service.c_str()});
    const bool isKnown = answer && dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_UINT32,
                                                         &process, DBUS_TYPE_INVALID);
    return isKnown ? process : 0;
}

BusValues::BusValues(DBusMessage *message)
    : isSet_(message && dbus_message_iter_init(message, &iterator_))
{
}

int BusValues::type() const
{
    return isSet_ ? dbus_message_iter_get_arg_type(&iterator_) : DBUS_TYPE_INVALID;
}

BusValues BusValues::inside() const
{
    BusValues values;
    values.isSet_ = dbus_type_is_container(type());
    if (values.isSet_)
        dbus_message_iter_recurse(&iterator_, &values.iterator_);
    return values;
}

std::string BusValues::text() const
{
    if (type() != DBUS_TYPE_STRING)
        return {};
    const char *text = nullptr;
    dbus_message_iter_get_basic(&iterator_, &text);
    return text;
}

std::string BusValues::textInVariant() const
{
    const auto value = inside();
    const std::string direct = value.text();
    return direct.empty() ? value.inside().text() : direct;
}

BusValues BusValues::entry(const std::string &key) const
{
    for (auto entry = inside(); !entry.isAtEnd(); entry.next()) {
        auto pair = entry.inside();
        if (pair.text() != key)
            continue;
        pair.next();
        return pair;
    }
    return {};
}

} // namespace quillmere
