#include "monitors/VolumeMonitor.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr double percentPerScrollStep = 2.0;
constexpr Duration scrollAdjustResetDelay =
    300ms; // the device's echo of the last step is in by then

double scrolledVolume(double percent, double steps)
{
    return std::clamp(percent + steps * percentPerScrollStep, 0.0, 100.0);
}

} // namespace

VolumeMonitor::VolumeMonitor(RunLoop &runLoop, AudioHardware &hardware)
    : runLoop_(runLoop)
    , hardware_(hardware)
{
}

void VolumeMonitor::start()
{
    if (isRunning())
        return;
    const AudioDeviceID device = hardware_.defaultOutputDevice();
    if (device == 0) {
        qCritical("Failed to get default output device");
        return;
    }
    run_.emplace();
    watch(device);
    auto listener = hardware_.onDefaultOutputChanged(
        [this] { runLoop_.post(run_->owner, [this] { defaultOutputChanged(); }); });
    if (listener) // else it stays with this device
        run_->defaultOutputListener = std::move(*listener);
}

void VolumeMonitor::stop()
{
    run_.reset();
    audioDeviceID_ = 0;
    endScrollAdjust();
}

void VolumeMonitor::watch(AudioDeviceID device)
{
    run_->mainVolumeListener.cancel();
    run_->volumeScalarListener.cancel();
    audioDeviceID_ = device;
    if (device == 0)
        return;
    const auto listener = [this] { volumeChanged(); };
    run_->mainVolumeListener =
        hardware_.onVolumeChanged(device, AudioProperty::VirtualMainVolume, listener);
    run_->volumeScalarListener =
        hardware_.onVolumeChanged(device, AudioProperty::VolumeScalar, listener);
}

std::optional<double> VolumeMonitor::currentVolume() const
{
    if (audioDeviceID_ == 0)
        return std::nullopt;
    auto level = hardware_.volume(audioDeviceID_, AudioProperty::VirtualMainVolume);
    if (!level)
        level = hardware_.volume(audioDeviceID_, AudioProperty::VolumeScalar);
    if (!level)
        return std::nullopt;
    // Multiplied as float, where 0.33 and 0.66 give the whole percent the symbols switch at.
    return *level * 100.0F;
}

void VolumeMonitor::volumeChanged()
{
    if (isScrollAdjusting_)
        return;
    if (const auto percent = currentVolume())
        runLoop_.post(run_->owner, [this, percent = *percent] { report(percent); });
}

void VolumeMonitor::defaultOutputChanged()
{
    endScrollAdjust(); // its target was the old device's
    watch(hardware_.defaultOutputDevice());
    if (const auto percent = currentVolume())
        report(*percent);
}

void VolumeMonitor::report(double percent) const
{
    if (onVolumeChange)
        onVolumeChange(percent);
}

std::optional<double> VolumeMonitor::adjustByScroll(double steps)
{
    const auto from = isScrollAdjusting_ ? scrollTarget_ : currentVolume();
    if (!isRunning() || !from || !std::isfinite(steps))
        return std::nullopt;
    scrollTarget_ = scrolledVolume(*from, steps);
    isScrollAdjusting_ = true;
    scrollAdjustResetWork_ = runLoop_.after(scrollAdjustResetDelay, [this] { endScrollAdjust(); });
    hardware_.setVolume(audioDeviceID_, static_cast<float>(scrollTarget_ / 100.0));
    return scrollTarget_;
}

void VolumeMonitor::endScrollAdjust()
{
    isScrollAdjusting_ = false;
    scrollAdjustResetWork_.cancel();
}

} // namespace quillmere
