#pragma once

#include "platform/DisplayBrightness.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Reports the display's brightness, told apart by how it changed: a step of the keys or a slider,
/// or the slow drift of automatic brightness.
///
/// It asks five times a second, but only while the display is available: between start() and the
/// first level, and after the display is gone, no timer runs. Each time the display becomes
/// available its level is where reports start from, never a report itself. Main thread only.
class BrightnessMonitor
{
public:
    /// Percentage points; a change by at least this much counts as a step.
    static constexpr double autoBrightnessThreshold = 3.0;

    BrightnessMonitor(RunLoop &runLoop, DisplayBrightness &display);

    /// Get the new brightness in percent, 0..100, from the main queue; not after stop().
    std::function<void(double)> onBrightnessChange;
    std::function<void(double)> onAutoBrightnessChange;

    /// Does nothing while running.
    void start();
    void stop();

    bool isRunning() const { return run_.has_value(); }
    std::optional<double> lastBrightness() const { return lastBrightness_; } ///< 0..1

private:
    /// What start() sets up; ending it releases the timer and drops reports still posted.
    struct Run {
        Task availabilityListener;
        Task timer;
        Owner owner;
    };

    void follow(bool available);
    void poll();

    RunLoop &runLoop_;
    DisplayBrightness &display_;
    std::optional<double> lastBrightness_;
    std::optional<Run> run_;
};

} // namespace quillmere
