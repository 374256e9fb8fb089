#include "platform/linux/sockets/MessageDelivery.h"

namespace quillmere {

MessageDelivery::MessageDelivery(RunLoop &runLoop, const Owner &owner)
    : runLoop_(runLoop)
    , owner_(owner.reference())
{
}

bool MessageDelivery::put(std::function<void()> action)
{
    std::unique_lock lock(mutex_);
    hasRoom_.wait(lock, [this] { return isClosed_ || actions_.size() < most; });
    if (isClosed_)
        return false;
    actions_.push_back(std::move(action));
    if (!std::exchange(isPosted_, true))
        post();
    return true;
}

void MessageDelivery::close()
{
    const std::scoped_lock lock(mutex_);
    isClosed_ = true;
    actions_.clear();
    hasRoom_.notify_all();
}

void MessageDelivery::post()
{
    runLoop_.post([self = shared_from_this()] { self->deliver(); });
}

void MessageDelivery::deliver()
{
    const Instant end = runLoop_.now() + slice;
    while (const auto action = next()) {
        if (owner_.expired())
            return close();
        action();
        if (runLoop_.now() >= end)
            return post();
    }
}

/// Null when there is none: the next one put has itself posted.
std::function<void()> MessageDelivery::next()
{
    const std::scoped_lock lock(mutex_);
    if (actions_.empty()) {
        isPosted_ = false;
        return nullptr;
    }
    auto action = std::move(actions_.front());
    actions_.pop_front();
    hasRoom_.notify_one();
    return action;
}

} // namespace quillmere
