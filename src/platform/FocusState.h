#pragma once

#include "platform/Task.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Whether the user has asked the desktop not to be disturbed. Everything on the main thread.
class FocusState
{
public:
    virtual ~FocusState() = default;

    /// Absent on a desktop that does not tell, and while nothing is known. Answers at once.
    virtual std::optional<bool> isOn() const = 0;

    /// Called when it is switched on or off, by whom ever. What is found at first is no change, nor
    /// is what a notification server that comes back tells.
    virtual Task onChanged(std::function<void(bool isOn)> listener) = 0;
};

} // namespace quillmere
