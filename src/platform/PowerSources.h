#pragma once

#include "platform/Task.h"

#include <functional>
#include <optional>

namespace quillmere {

/// The charge of this machine at one moment.
struct BatteryStatus {
    int level = 0; ///< percent, 0..100; several batteries count as one
    bool isCharging = false;
    bool isPluggedIn = false; ///< also while a full or held battery does not charge

    bool operator==(const BatteryStatus &) const = default;
};

/// What this machine runs on. Everything on the main thread.
class PowerSources
{
public:
    virtual ~PowerSources() = default;

    /// Absent without a battery, and while nothing is known. Answers at once.
    virtual std::optional<BatteryStatus> status() const = 0;

    /// Called after every change of status(). A charger's plug has come to rest by then.
    virtual Task onChanged(std::function<void()> listener) = 0;

    /// Whether the machine's power service has told what there is, be it no battery at all.
    virtual bool isAvailable() const = 0;

    /// True when the first snapshot is there, also of a service that has been away; false when the
    /// service went. What happened meanwhile is no change: whoever follows the status starts on
    /// every true and stops on false.
    virtual Task onAvailabilityChanged(std::function<void(bool available)> listener) = 0;
};

} // namespace quillmere
