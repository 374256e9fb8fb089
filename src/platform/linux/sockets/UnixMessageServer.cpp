#include "platform/linux/sockets/UnixMessageServer.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace quillmere {

namespace {

using Step = ListenError::Step;

constexpr int backlog = 5;

tl::unexpected<ListenError> failed(Step step)
{
    return tl::unexpected(ListenError{step, QString::fromLocal8Bit(std::strerror(errno))});
}

sockaddr_un addressOf(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::copy_n(path.begin(), std::min<std::size_t>(path.size(), sizeof address.sun_path - 1),
                address.sun_path);
    return address;
}

/// In a folder for everybody, what others put there can't be taken away.
void explainOccupied(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) == 0)
        qWarning("[Claude Code] Cannot listen at %s: there is a %s of user %u", path.constData(),
                 S_ISSOCK(status.st_mode) ? "socket" : "file", status.st_uid);
}

} // namespace

struct UnixMessageServer::Worker {
    Worker(Descriptor listener, const SocketLimits &limits, Receiver receiver,
           std::shared_ptr<MessageDelivery> delivery)
        : delivery(delivery)
        , reader(std::move(listener), limits, std::move(receiver), std::move(delivery))
    {
    }
    ~Worker()
    {
        if (thread.joinable())
            thread.join();
    }

    void start()
    {
        thread = std::thread([this] {
            pthread_setname_np(pthread_self(), "message-socket");
            reader.run();
            isDone = true;
        });
    }
    void stop()
    {
        delivery->close();
        reader.stop();
    }

    std::shared_ptr<MessageDelivery> delivery;
    SocketReader reader;
    std::atomic<bool> isDone = false;
    std::thread thread;
};

UnixMessageServer::UnixMessageServer(RunLoop &runLoop, const SocketLimits &limits)
    : runLoop_(runLoop)
    , limits_(limits)
{
}

UnixMessageServer::~UnixMessageServer()
{
    UnixMessageServer::close();
}

tl::expected<void, ListenError> UnixMessageServer::listen(const QString &path, const Owner &owner,
                                                          Receiver receiver)
{
    close();
    std::erase_if(former_, [](const auto &worker) { return worker->isDone.load(); });

    path_ = QFile::encodeName(path);
    ::unlink(path_.constData());
    Descriptor listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!listener)
        return failed(Step::CreateSocket);
    const auto address = addressOf(path_);
    if (::bind(listener.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        const auto error = failed(Step::Bind);
        explainOccupied(path_);
        return error;
    }
    ::lstat(path_.constData(), &socketFile_);
    if (::listen(listener.get(), backlog) != 0) {
        const auto error = failed(Step::Listen);
        ::unlink(path_.constData());
        return error;
    }
    worker_ = std::make_unique<Worker>(std::move(listener), limits_, std::move(receiver),
                                       std::make_shared<MessageDelivery>(runLoop_, owner));
    if (!worker_->reader.isReady()) {
        const auto error = failed(Step::Listen);
        worker_.reset();
        ::unlink(path_.constData());
        return error;
    }
    worker_->start();
    return {};
}

void UnixMessageServer::close()
{
    if (!worker_)
        return;
    worker_->stop();
    former_.push_back(std::move(worker_));
    struct stat now = {};
    if (::lstat(path_.constData(), &now) == 0 && now.st_ino == socketFile_.st_ino &&
        now.st_dev == socketFile_.st_dev)
        ::unlink(path_.constData());
}

} // namespace quillmere
