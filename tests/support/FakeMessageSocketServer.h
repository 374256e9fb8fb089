#pragma once

#include "platform/MessageSocketServer.h"
#include "platform/RunLoop.h"

#include <optional>

namespace quillmere {

/// A socket the test sends messages to; they arrive with the run loop's next turn.
class FakeMessageSocketServer : public MessageSocketServer
{
public:
    explicit FakeMessageSocketServer(RunLoop &runLoop)
        : runLoop_(runLoop)
    {
    }

    tl::expected<void, ListenError> listen(const QString &path, const Owner &owner,
                                           Receiver receiver) override
    {
        if (error)
            return tl::unexpected(*error);
        this->path = path;
        owner_ = owner.reference();
        receiver_ = std::move(receiver);
        return {};
    }
    void close() override
    {
        path.clear();
        receiver_ = nullptr;
    }

    void send(const QByteArray &message)
    {
        if (!receiver_)
            return;
        runLoop_.post([owner = owner_, action = receiver_(message)] {
            if (!owner.expired())
                action();
        });
    }

    QString path; ///< empty: not listening
    std::optional<ListenError> error;

private:
    RunLoop &runLoop_;
    Owner::Reference owner_;
    Receiver receiver_;
};

} // namespace quillmere
