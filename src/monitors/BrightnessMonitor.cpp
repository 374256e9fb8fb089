#include "monitors/BrightnessMonitor.h"

#include <cmath>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration pollInterval = 200ms;
constexpr Duration pollTolerance = 50ms;

/// Levels that are the same in thousandths are the same; an absent one differs from all.
bool differs(std::optional<double> last, double brightness)
{
    return std::round(brightness * 1000) != std::round(last.value_or(-1) * 1000);
}

bool isStep(std::optional<double> last, double brightness)
{
    const double percent = brightness * 100;
    const double lastPercent = last.value_or(brightness) * 100;
    return std::abs(percent - lastPercent) >= BrightnessMonitor::autoBrightnessThreshold;
}

} // namespace

BrightnessMonitor::BrightnessMonitor(RunLoop &runLoop, DisplayBrightness &display)
    : runLoop_(runLoop)
    , display_(display)
{
}

void BrightnessMonitor::start()
{
    if (isRunning())
        return;
    run_.emplace();
    run_->availabilityListener =
        display_.onAvailabilityChanged([this](bool available) { follow(available); });
    follow(display_.isAvailable());
}

void BrightnessMonitor::stop()
{
    run_.reset();
}

void BrightnessMonitor::follow(bool available)
{
    run_->timer.cancel();
    if (!available)
        return;
    lastBrightness_ = display_.brightness();
    run_->timer = runLoop_.every(pollInterval, pollTolerance, [this] { poll(); });
}

void BrightnessMonitor::poll()
{
    const auto brightness = display_.brightness();
    if (!brightness || !differs(lastBrightness_, *brightness))
        return;
    const bool step = isStep(lastBrightness_, *brightness);
    lastBrightness_ = brightness;
    runLoop_.post(run_->owner, [this, step, percent = *brightness * 100] {
        if (const auto &report = step ? onBrightnessChange : onAutoBrightnessChange)
            report(percent);
    });
}

} // namespace quillmere
