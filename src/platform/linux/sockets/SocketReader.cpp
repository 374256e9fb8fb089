#include "platform/linux/sockets/SocketReader.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t wakeId = 0;
constexpr std::uint64_t listenerId = 1;
constexpr int acceptsAtOnce = 64;
constexpr qsizetype chunkSize = 65'536;
/// More than a socket's own buffer can hold, so a closed connection is read to its end in one turn.
constexpr qsizetype readAtOnce = 1'048'576;
/// More than there are descriptors to watch, so that none of those ready has to wait its turn.
constexpr std::size_t eventsAtOnce = 512;
constexpr auto pauseWithoutDescriptors = 250ms;

} // namespace

SocketReader::SocketReader(Descriptor listener, const SocketLimits &limits,
                           MessageSocketServer::Receiver receiver,
                           std::shared_ptr<MessageDelivery> delivery)
    : listener_(std::move(listener))
    , limits_(limits)
    , receiver_(std::move(receiver))
    , delivery_(std::move(delivery))
    , epoll_(::epoll_create1(EPOLL_CLOEXEC))
    , wake_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , lastId_(listenerId)
    , chunk_(chunkSize, Qt::Uninitialized)
{
    watch(wake_.get(), wakeId);
    watch(listener_.get(), listenerId);
}

bool SocketReader::watch(int descriptor, std::uint64_t id)
{
    epoll_event event{.events = EPOLLIN, .data = {.u64 = id}};
    return ::epoll_ctl(epoll_.get(), EPOLL_CTL_ADD, descriptor, &event) == 0;
}

void SocketReader::stop()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(wake_.get(), &one, sizeof one);
}

void SocketReader::run()
{
    std::array<epoll_event, eventsAtOnce> events;
    while (true) {
        const int count = ::epoll_wait(epoll_.get(), events.data(), eventsAtOnce, timeout());
        if (count < 0 && errno != EINTR)
            return;
        for (int i = 0; i < count; ++i) {
            const auto id = events.at(static_cast<std::size_t>(i)).data.u64;
            if (id == wakeId)
                return;
            if (id == listenerId) {
                acceptSome();
                continue;
            }
            const auto found = byId_.find(id);
            if (found != byId_.end() && serve(found->second) == State::Stopped)
                return;
        }
        dropSilent();
        resumeAccepting();
    }
}

/// Milliseconds until something is due, rounded up; -1 for never.
int SocketReader::timeout() const
{
    auto next = acceptAgain_;
    if (!connections_.empty()) {
        const auto silent = connections_.front().lastSign + limits_.silence;
        next = next ? std::min(*next, silent) : silent;
    }
    if (!next)
        return -1;
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
    return static_cast<int>(std::max(rest, 0ms).count());
}

void SocketReader::acceptSome()
{
    for (int i = 0; i < acceptsAtOnce; ++i) {
        Descriptor socket(
            ::accept4(listener_.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (socket)
            add(std::move(socket));
        else if (errno == EMFILE || errno == ENFILE || errno == ENOMEM || errno == ENOBUFS)
            return stopAccepting();
        else if (errno != EINTR && errno != ECONNABORTED)
            return;
    }
}

void SocketReader::add(Descriptor socket)
{
    if (connections_.size() >= limits_.connections)
        dropUnruly(connections_.begin(), "too many connections are open");
    if (!watch(socket.get(), ++lastId_))
        return;
    connections_.push_back({.id = lastId_, .socket = std::move(socket), .lastSign = Clock::now()});
    byId_.emplace(lastId_, std::prev(connections_.end()));
}

/// Those who wait to be accepted would keep the thread awake all the time.
void SocketReader::stopAccepting()
{
    epoll_event none{.events = 0, .data = {.u64 = listenerId}};
    ::epoll_ctl(epoll_.get(), EPOLL_CTL_MOD, listener_.get(), &none);
    acceptAgain_ = Clock::now() + pauseWithoutDescriptors;
}

void SocketReader::resumeAccepting()
{
    if (!acceptAgain_ || Clock::now() < *acceptAgain_)
        return;
    acceptAgain_.reset();
    epoll_event input{.events = EPOLLIN, .data = {.u64 = listenerId}};
    ::epoll_ctl(epoll_.get(), EPOLL_CTL_MOD, listener_.get(), &input);
}

SocketReader::State SocketReader::serve(Connections::iterator connection)
{
    const auto state = readSome(connection);
    if (state != State::Ended)
        return state;
    const auto message = std::exchange(connection->message, {});
    total_ -= message.size();
    drop(connection);
    if (message.isEmpty())
        return State::Ended;
    return delivery_->put(receiver_(message)) ? State::Ended : State::Stopped;
}

SocketReader::State SocketReader::readSome(Connections::iterator connection)
{
    const auto id = connection->id;
    for (qsizetype done = 0; done < readAtOnce;) {
        const auto count =
            ::recv(connection->socket.get(), chunk_.data(), static_cast<size_t>(chunkSize), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EAGAIN)
            break;
        if (count <= 0)
            return State::Ended;
        done += count;
        total_ += count;
        connection->message.append(chunk_.constData(), count);
        if (connection->message.size() > limits_.message) {
            dropUnruly(connection, "its message is too large");
            return State::Open;
        }
        boundMemory();
        if (!byId_.contains(id))
            return State::Open;
    }
    connection->lastSign = Clock::now();
    connections_.splice(connections_.end(), connections_, connection);
    return State::Open;
}

void SocketReader::drop(Connections::iterator connection)
{
    total_ -= connection->message.size();
    byId_.erase(connection->id);
    connections_.erase(connection);
    if (connections_.empty())
        hasComplained_ = false;
}

void SocketReader::dropSilent()
{
    const auto now = Clock::now();
    while (!connections_.empty() && now - connections_.front().lastSign >= limits_.silence)
        dropUnruly(connections_.begin(), "it went silent");
}

void SocketReader::dropUnruly(Connections::iterator connection, const char *reason)
{
    if (!std::exchange(hasComplained_, true))
        qWarning("[Claude Code] A client of the socket was cut off: %s", reason);
    drop(connection);
}

void SocketReader::boundMemory()
{
    if (total_ <= limits_.total)
        return;
    dropUnruly(std::max_element(connections_.begin(), connections_.end(),
                                [](const Connection &one, const Connection &other) {
                                    return one.message.size() < other.message.size();
                                }),
               "unfinished messages take too much memory");
}

} // namespace quillmere
