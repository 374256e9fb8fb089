#pragma once

#include "platform/AudioHardware.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Reports the volume of the default output device, following it from device to device, and changes
/// it when the user scrolls on the island. Volumes are percent, 0..100. Main thread only.
class VolumeMonitor
{
public:
    VolumeMonitor(RunLoop &runLoop, AudioHardware &hardware);

    /// Called for every change of the volume, and with the new device's volume when the default
    /// device changes. Not called for changes made by adjustByScroll, nor after stop().
    std::function<void(double)> onVolumeChange;

    /// Does nothing while running. Without a default output device it logs and stays stopped.
    void start();
    void stop();

    /// Raises (positive) or lowers the volume by scroll steps, fractions included. Quick steps add
    /// up from the volume they have set, however late the device reports it. Answers the new
    /// volume; absent when not running or the device tells no volume.
    std::optional<double> adjustByScroll(double steps);

    /// Absent when there is no device or it tells no volume.
    std::optional<double> currentVolume() const;

    AudioDeviceID audioDeviceID() const { return audioDeviceID_; } ///< watched device, 0 = none
    bool isRunning() const { return run_.has_value(); }
    bool isScrollAdjusting() const { return isScrollAdjusting_; }

private:
    /// What start() sets up; ending it removes the listeners and drops reports still posted.
    struct Run {
        Task defaultOutputListener;
        Task mainVolumeListener;
        Task volumeScalarListener;
        Owner owner;
    };

    void watch(AudioDeviceID device);
    void volumeChanged();
    void defaultOutputChanged();
    void report(double percent) const;
    void endScrollAdjust();

    RunLoop &runLoop_;
    AudioHardware &hardware_;
    AudioDeviceID audioDeviceID_ = 0;
    bool isScrollAdjusting_ = false;
    double scrollTarget_ = 0; // percent, good while isScrollAdjusting_
    Task scrollAdjustResetWork_;
    std::optional<Run> run_;
};

} // namespace quillmere
