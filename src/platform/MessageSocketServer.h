#pragma once

#include "platform/Owner.h"

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

/// Why nobody can connect.
struct ListenError {
    enum class Step { CreateSocket, Bind, Listen };
    Step step = Step::CreateSocket;
    QString text{}; ///< the system's
};

/// Receives messages over a socket in the file system. A connection carries one message, ended by
/// the sender closing its side; nothing is ever written back. Clients that send nothing, too much
/// or never end cost others no more than a moment, and bounded memory. Main thread only.
class MessageSocketServer
{
public:
    /// Runs off the main thread, one message at a time and none of them empty; what it returns runs
    /// on the main thread. Must not touch anything that lives there.
    using Receiver = std::function<std::function<void()>(const QByteArray &message)>;

    virtual ~MessageSocketServer() = default;

    /// Listens at `path`, in place of what an earlier run left there, and no longer anywhere else.
    /// Messages of one client arrive in their order, and only while the owner lives.
    virtual tl::expected<void, ListenError> listen(const QString &path, const Owner &owner,
                                                   Receiver receiver) = 0;

    /// Nothing arrives after this. Takes the socket away from its path; does nothing when not
    /// listening.
    virtual void close() = 0;
};

} // namespace quillmere
