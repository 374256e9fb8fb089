#pragma once

#include "platform/Task.h"

#include <QString>

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

    /// Which desktop or notification server tells, as its users know it; empty while none does.
    virtual QString teller() const = 0;

    /// Called when it is switched on or off, by whom ever. What is found at first is no change, nor
    /// is what another one tells, or one that comes back.
    virtual Task onChanged(std::function<void(bool isOn)> listener) = 0;

    /// Called when another one tells, or none any more.
    virtual Task onTellerChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
