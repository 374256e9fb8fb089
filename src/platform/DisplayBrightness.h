#pragma once

#include "platform/Task.h"

#include <functional>
#include <optional>

namespace quillmere {

/// The brightness of the display a person looks at: the built-in panel, else an external display
/// that tells its own. Nothing announces its changes, so whoever wants them asks again and again,
/// but only while there is something to ask: many desktop machines have no brightness at all, and
/// these are not to be woken for it. Main thread only.
class DisplayBrightness
{
public:
    virtual ~DisplayBrightness() = default;

    /// 0..1, absent while nothing can be read. Answers at once, for the price of one small read.
    virtual std::optional<double> brightness() const = 0;

    /// True from the first level that could be read until the display is gone.
    virtual bool isAvailable() const = 0;

    /// False, then true when another display takes over: its levels and the former's are not to be
    /// compared.
    virtual Task onAvailabilityChanged(std::function<void(bool available)> listener) = 0;
};

} // namespace quillmere
