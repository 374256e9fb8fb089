#include "helpers/LoopbackHttp.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <netinet/in.h>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace quillmere {

namespace {

using Deadline = std::chrono::steady_clock::time_point;

constexpr std::size_t longestHead = 16UL * 1024;
constexpr std::string_view headEnd("\r\n\r\n");

class Socket
{
public:
    explicit Socket(Deadline deadline)
        : descriptor_(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
        , deadline_(deadline)
    {
    }
    ~Socket()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    bool connect(std::uint16_t port) const
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::connect(descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) ==
            0)
            return true;
        int error = 0;
        socklen_t size = sizeof error;
        return errno == EINPROGRESS && isReady(POLLOUT) &&
               ::getsockopt(descriptor_, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
    }

    bool send(std::string_view text) const
    {
        while (!text.empty()) {
            const auto count = ::send(descriptor_, text.data(), text.size(), MSG_NOSIGNAL);
            if (count > 0)
                text.remove_prefix(static_cast<std::size_t>(count));
            else if (errno != EAGAIN || !isReady(POLLOUT))
                return false;
        }
        return true;
    }

    /// Appends what comes next; false at the end, whatever that is.
    bool receive(std::string &text) const
    {
        std::array<char, 16384> piece;
        if (!isReady(POLLIN))
            return false;
        const auto count = ::recv(descriptor_, piece.data(), piece.size(), 0);
        if (count > 0)
            text.append(piece.data(), static_cast<std::size_t>(count));
        return count > 0;
    }

private:
    bool isReady(short what) const
    {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline_ - std::chrono::steady_clock::now());
        pollfd state{descriptor_, what, 0};
        return left.count() > 0 && ::poll(&state, 1, static_cast<int>(left.count())) == 1;
    }

    int descriptor_;
    Deadline deadline_;
};

/// The value of a header in lower case; absent if there is none.
std::optional<std::string_view> header(std::string_view head, const std::string &name)
{
    const auto at = head.find("\r\n" + name + ':');
    if (at == std::string_view::npos)
        return std::nullopt;
    auto value = head.substr(at + name.size() + 3);
    value = value.substr(0, value.find('\r'));
    value.remove_prefix(std::min(value.find_first_not_of(' '), value.size()));
    return value;
}

struct Head {
    std::size_t size;
    std::optional<std::size_t> bodySize; ///< absent: it ends with the connection
};

/// Absent if it announces anything but a plain body.
std::optional<Head> readHead(const std::string &answer, std::size_t end)
{
    std::string head = answer.substr(0, end + 2);
    std::ranges::transform(head, head.begin(), [](unsigned char letter) {
        return static_cast<char>(std::tolower(letter));
    });
    const bool isFine = head.starts_with("http/1.1 200 ") || head.starts_with("http/1.0 200 ");
    if (!isFine || header(head, "transfer-encoding"))
        return std::nullopt;
    Head result{end + headEnd.size(), std::nullopt};
    if (const auto length = header(head, "content-length")) {
        std::size_t size = 0;
        const auto error =
            std::from_chars(length->data(), length->data() + length->size(), size).ec;
        if (error != std::errc())
            return std::nullopt;
        result.bodySize = size;
    }
    return result;
}

/// Reads until the head is complete.
std::optional<Head> receiveHead(const Socket &socket, std::string &answer)
{
    while (answer.size() < longestHead) {
        if (!socket.receive(answer))
            return std::nullopt;
        if (const auto end = answer.find(headEnd); end != std::string::npos)
            return readHead(answer, end);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> getFromLoopback(std::uint16_t port, const std::string &path,
                                           std::size_t limit, Deadline deadline)
{
    const Socket socket(deadline);
    if (!socket.connect(port) ||
        !socket.send("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(port) +
                     "\r\nConnection: close\r\n\r\n"))
        return std::nullopt;
    std::string answer;
    const auto head = receiveHead(socket, answer);
    if (!head || head->bodySize.value_or(0) > limit)
        return std::nullopt;
    answer.erase(0, head->size);
    while (answer.size() < head->bodySize.value_or(limit + 1) && socket.receive(answer)) {
    }
    if (head->bodySize ? answer.size() < *head->bodySize : answer.size() > limit)
        return std::nullopt;
    answer.resize(head->bodySize.value_or(answer.size()));
    return answer;
}

} // namespace quillmere
