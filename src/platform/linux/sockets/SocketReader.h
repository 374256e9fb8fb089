#pragma once

#include "platform/MessageSocketServer.h"
#include "platform/linux/sockets/Descriptor.h"
#include "platform/linux/sockets/MessageDelivery.h"

#include <chrono>
#include <cstdint>
#include <list>
#include <optional>
#include <unordered_map>

namespace quillmere {

/// What clients may take. Each limit ends a connection, and only the one that is over it: the
/// largest message, the longest silent client.
struct SocketLimits {
    qsizetype message = qsizetype{64} << 20; ///< bytes
    qsizetype total = qsizetype{96} << 20;   ///< bytes of all unfinished messages
    std::size_t connections = 256;
    std::chrono::milliseconds silence{5'000};
};

/// Serves all connections of a listening socket on one thread, which sleeps while nothing comes in.
///
/// Messages are passed on in the order their connections were closed in; so a client that opens its
/// connections one after the other keeps its order.
class SocketReader
{
public:
    SocketReader(Descriptor listener, const SocketLimits &limits,
                 MessageSocketServer::Receiver receiver, std::shared_ptr<MessageDelivery> delivery);

    /// False if the system has nothing to wait with.
    bool isReady() const { return epoll_ && wake_; }

    /// The thread's work, until stop().
    void run();

    /// Any thread.
    void stop();

private:
    using Clock = std::chrono::steady_clock;

    struct Connection {
        std::uint64_t id;
        Descriptor socket;
        QByteArray message{};
        Clock::time_point lastSign;
    };
    using Connections = std::list<Connection>;
    enum class State { Open, Ended, Stopped };

    bool watch(int descriptor, std::uint64_t id);
    int timeout() const;
    void acceptSome();
    void add(Descriptor socket);
    void stopAccepting();
    void resumeAccepting();
    State serve(Connections::iterator connection);
    State readSome(Connections::iterator connection);
    void drop(Connections::iterator connection);
    void dropSilent();
    void dropUnruly(Connections::iterator connection, const char *reason);
    void boundMemory();

    const Descriptor listener_;
    const SocketLimits limits_;
    const MessageSocketServer::Receiver receiver_;
    const std::shared_ptr<MessageDelivery> delivery_;
    const Descriptor epoll_;
    const Descriptor wake_;

    Connections connections_; ///< the longest silent first
    std::unordered_map<std::uint64_t, Connections::iterator> byId_;
    std::uint64_t lastId_;
    qsizetype total_ = 0;
    std::optional<Clock::time_point> acceptAgain_;
    bool hasComplained_ = false; ///< about the clients of this bunch
    QByteArray chunk_;
};

} // namespace quillmere
