#include "platform/linux/net/RouteReachability.h"

#include <QDebug>

#include <array>
#include <cstring>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr std::size_t largestMessage = 32768;

int openSocket()
{
    const int handle = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (handle >= 0 && ::bind(handle, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
        return handle;
    qWarning("[Network] Routes are not told: %s", std::strerror(errno));
    if (handle >= 0)
        ::close(handle);
    return -1;
}

bool isNewDefaultRoute(const nlmsghdr &header)
{
    if (header.nlmsg_type != RTM_NEWROUTE || header.nlmsg_len < NLMSG_LENGTH(sizeof(rtmsg)))
        return false;
    rtmsg route{};
    std::memcpy(&route, reinterpret_cast<const char *>(&header) + NLMSG_HDRLEN, sizeof route);
    return route.rtm_dst_len == 0 && route.rtm_table == RT_TABLE_MAIN &&
           route.rtm_type == RTN_UNICAST;
}

bool hasNewDefaultRoute(char *messages, ssize_t length)
{
    auto left = static_cast<unsigned>(length);
    for (auto *header = reinterpret_cast<nlmsghdr *>(messages); NLMSG_OK(header, left);
         header = NLMSG_NEXT(header, left)) {
        if (isNewDefaultRoute(*header))
            return true;
    }
    return false;
}

} // namespace

RouteReachability::RouteReachability(RunLoop &runLoop)
    : runLoop_(runLoop)
    , socket_(openSocket())
{
    if (socket_ < 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { receive(); });
}

RouteReachability::~RouteReachability()
{
    notifier_.reset();
    if (socket_ >= 0)
        ::close(socket_);
}

Task RouteReachability::onReturn(std::function<void()> listener)
{
    return listeners_.add(std::move(listener));
}

void RouteReachability::receive()
{
    bool hasReturned = false;
    alignas(nlmsghdr) std::array<char, largestMessage> buffer{};
    ssize_t length = 0;
    while ((length = ::recv(socket_, buffer.data(), buffer.size(), 0)) > 0)
        hasReturned = hasNewDefaultRoute(buffer.data(), length) || hasReturned;
    // What did not fit into the socket's queue may have been a route.
    if (hasReturned || (length < 0 && errno == ENOBUFS))
        settled_ = runLoop_.after(settling, [this] { listeners_.notify(); });
}

} // namespace quillmere
