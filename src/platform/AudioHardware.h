#pragma once

#include "platform/Task.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillmere {

/// An output device as long as the sound server runs; 0 = none. Ids are not reused.
using AudioDeviceID = std::uint32_t;

enum class AudioProperty {
    VirtualMainVolume, ///< the level a person sees, 0..1; muted reads as 0
    VolumeScalar,      ///< the first channel's level, 0..1
};

/// The sound server's output devices. Reads answer at once from the last snapshot; listeners are
/// called on the main thread, on real changes only. Everything on the main thread.
class AudioHardware
{
public:
    virtual ~AudioHardware() = default;

    /// 0 while there is none, or no sound server.
    virtual AudioDeviceID defaultOutputDevice() const = 0;

    /// Absent when the device is gone or does not tell.
    virtual std::optional<float> volume(AudioDeviceID device, AudioProperty property) const = 0;

    /// Sets the level of all channels, keeping their balance, and unmutes. Clamped to 0..1.
    virtual void setVolume(AudioDeviceID device, float level) = 0;

    virtual Task onVolumeChanged(AudioDeviceID device, AudioProperty property,
                                 std::function<void()> listener) = 0;
    virtual Task onDefaultOutputChanged(std::function<void()> listener) = 0;

    /// True: the first snapshot of a connection is there, or a default device appeared where there
    /// was none; in both cases after the default output's own listeners. False: the server went
    /// away. So a user of the default device can start on every true and stop on false.
    virtual Task onAvailabilityChanged(std::function<void(bool available)> listener) = 0;
    virtual bool isAvailable() const = 0;
};

} // namespace quillmere
