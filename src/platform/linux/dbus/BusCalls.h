#pragma once

#include "platform/Time.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QObject>
#include <QVariantList>

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

/// The arguments of the answer, or why there is none (a timeout is QDBusError::NoReply).
using BusReply = tl::expected<QVariantList, QDBusError>;

/// A packed value of an answer. One of another signature reads as an empty one: to unpack it all
/// the same would not end well.
template <class Value>
Value unpack(const QVariant &argument, QLatin1StringView signature)
{
    if (!argument.canConvert<QDBusArgument>())
        return {};
    const auto packed = argument.value<QDBusArgument>();
    return packed.currentSignature() == signature ? qdbus_cast<Value>(packed) : Value();
}

/// Calls to other programs on a bus that never make the caller wait. A class that calls keeps one
/// as a member: once it is destroyed, answers still under way reach nobody. Main thread only.
class BusCalls
{
public:
    explicit BusCalls(QDBusConnection connection);

    /// Sends `message` and hands `done` the answer, later and exactly once. Without a connection
    /// `done` gets the error QDBusError::Disconnected.
    void call(const QDBusMessage &message, Duration timeout,
              std::function<void(const BusReply &)> done);

    const QDBusConnection &connection() const { return connection_; }

private:
    QDBusConnection connection_;
    QObject pending_; // parent of the watchers, so that they end with this object
};

} // namespace quillmere
