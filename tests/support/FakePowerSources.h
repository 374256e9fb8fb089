#pragma once

#include "platform/Listeners.h"
#include "platform/PowerSources.h"

namespace quillmere {

/// Power sources that tell what the test sets.
class FakePowerSources : public PowerSources
{
public:
    std::optional<BatteryStatus> status() const override { return status_; }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }
    bool isAvailable() const override { return isAvailable_; }
    Task onAvailabilityChanged(std::function<void(bool)> listener) override
    {
        return availabilityListeners_.add(std::move(listener));
    }

    void set(std::optional<BatteryStatus> status)
    {
        status_ = status;
        listeners_.notify();
    }
    void setAvailable(bool available)
    {
        isAvailable_ = available;
        availabilityListeners_.notify(available);
    }
    bool isWatched() const { return !listeners_.isEmpty(); }

private:
    std::optional<BatteryStatus> status_;
    bool isAvailable_ = false;
    Listeners<> listeners_;
    Listeners<bool> availabilityListeners_;
};

} // namespace quillmere
