#pragma once

#include "platform/Task.h"

#include <functional>

namespace quillmere {

/// Notices when the machine gets back to a network. Main thread only.
class Reachability
{
public:
    virtual ~Reachability() = default;

    /// `listener` is called each time a way out of the machine appears.
    virtual Task onReturn(std::function<void()> listener) = 0;
};

} // namespace quillmere
