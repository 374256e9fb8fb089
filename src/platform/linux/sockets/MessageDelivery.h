#pragma once

#include "platform/RunLoop.h"

#include <condition_variable>
#include <deque>
#include <mutex>

namespace quillmere {

/// Hands actions from a thread to the main thread, in their order. The main thread takes them in
/// slices short enough for a frame in between; a thread that is too fast for it has to wait.
class MessageDelivery : public std::enable_shared_from_this<MessageDelivery>
{
public:
    MessageDelivery(RunLoop &runLoop, const Owner &owner);

    /// Waits while too many are on their way. False: closed, none is taken any more.
    bool put(std::function<void()> action);

    /// What is on its way is dropped. Main thread.
    void close();

private:
    static constexpr Duration slice = std::chrono::milliseconds(2);
    static constexpr std::size_t most = 1'000;

    void deliver();
    std::function<void()> next();
    void post();

    RunLoop &runLoop_;
    const Owner::Reference owner_;
    std::mutex mutex_;
    std::condition_variable hasRoom_;
    std::deque<std::function<void()>> actions_;
    bool isPosted_ = false;
    bool isClosed_ = false;
};

} // namespace quillmere
