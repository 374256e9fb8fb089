#pragma once

#include "platform/DisplayBrightness.h"
#include "platform/Listeners.h"

namespace quillmere {

/// A display whose level the test sets; counts how often it is asked.
class FakeDisplayBrightness : public DisplayBrightness
{
public:
    void setAvailable(bool available)
    {
        isAvailable_ = available;
        listeners_.notify(available);
    }

    std::optional<double> brightness() const override
    {
        ++reads;
        return level;
    }
    bool isAvailable() const override { return isAvailable_; }
    Task onAvailabilityChanged(std::function<void(bool)> listener) override
    {
        return listeners_.add(std::move(listener));
    }

    std::optional<double> level;
    mutable int reads = 0;

private:
    bool isAvailable_ = false;
    Listeners<bool> listeners_;
};

} // namespace quillmere
