#pragma once

#include <dbus/dbus.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace quillmere {

namespace bus_detail {

struct CloseConnection {
    void operator()(DBusConnection *connection) const
    {
        dbus_connection_close(connection);
        dbus_connection_unref(connection);
    }
};

struct FreeMessage {
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
};

} // namespace bus_detail

using BusMessage = std::unique_ptr<DBusMessage, bus_detail::FreeMessage>;

/// The user's session bus. Every call waits, for a second and a half at most, and starts nothing.
class SessionBus
{
public:
    struct Method {
        const char *path;
        const char *interface;
        const char *member;
    };

    SessionBus();

    /// `arguments` are texts in UTF-8. Null unless it was answered.
    BusMessage call(const std::string &service, const Method &method,
                    std::initializer_list<const char *> arguments) const;

    /// The names on the bus that are `name` or a dotted or hyphenated extension of it.
    std::vector<std::string> namesLike(const std::string &name) const;

    /// Zero if the bus does not tell.
    unsigned processOf(const std::string &service) const;

private:
    std::unique_ptr<DBusConnection, bus_detail::CloseConnection> connection_; // null: no bus
};

/// Walks the values of a message or of what contains them.
class BusValues
{
public:
    /// At its end from the beginning for null.
    explicit BusValues(DBusMessage *message);

    bool isAtEnd() const { return type() == DBUS_TYPE_INVALID; }
    void next() { dbus_message_iter_next(&iterator_); }

    /// What is in the array, structure, dictionary entry or variant here; at its end if it is none
    /// of these.
    BusValues inside() const;

    /// Empty if it is no text.
    std::string text() const;

    /// The text in a variant, or the first one of a variant's list.
    std::string textInVariant() const;

    /// For a{sv}: the entry's value, at its end if there is none.
    BusValues entry(const std::string &key) const;

private:
    BusValues() = default;
    int type() const;

    mutable DBusMessageIter iterator_ = DBUS_MESSAGE_ITER_INIT_CLOSED; // read through non-const
    bool isSet_ = false;
};

} // namespace quillmere
