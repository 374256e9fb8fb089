#pragma once

#include "platform/Task.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Whether the machine saves power at the price of speed. Everything on the main thread.
class LowPowerMode
{
public:
    virtual ~LowPowerMode() = default;

    /// Absent on a machine without such a mode, and while nothing is known. Answers at once.
    virtual std::optional<bool> isOn() const = 0;

    /// Called when it is switched on or off, by whom ever. What is found at first is no change, nor
    /// is a power service that goes and comes back with the same mode.
    virtual Task onChanged(std::function<void(bool isOn)> listener) = 0;
};

} // namespace quillmere
