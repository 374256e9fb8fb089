#pragma once

#include <functional>

namespace quillmere {

/// Runs work off the main thread, one piece at a time, in the order it was handed over.
/// Destroying the queue finishes what was handed over and then joins.
class SerialQueue
{
public:
    virtual ~SerialQueue() = default;

    /// Any thread. Never blocks on the work.
    virtual void async(std::function<void()> work) = 0;

    /// Waits until everything handed over before the call is done. For shutdown only.
    virtual void drain() = 0;
};

} // namespace quillmere
