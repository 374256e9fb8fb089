#pragma once

#include "platform/MessageSocketServer.h"
#include "platform/RunLoop.h"
#include "platform/linux/sockets/SocketReader.h"

#include <memory>
#include <sys/stat.h>
#include <vector>

namespace quillmere {

/// MessageSocketServer on a stream socket of the file system. One thread while listening; what a
/// thread still has to do after close() is waited for by the destructor only.
class UnixMessageServer : public MessageSocketServer
{
public:
    explicit UnixMessageServer(RunLoop &runLoop, const SocketLimits &limits = {});
    ~UnixMessageServer() override;

    tl::expected<void, ListenError> listen(const QString &path, const Owner &owner,
                                           Receiver receiver) override;
    void close() override;

private:
    struct Worker;

    RunLoop &runLoop_;
    const SocketLimits limits_;
    QByteArray path_;
    struct stat socketFile_ = {};
    std::unique_ptr<Worker> worker_;
    std::vector<std::unique_ptr<Worker>> former_;
};

} // namespace quillmere
