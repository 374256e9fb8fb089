#pragma once

#include "platform/AudioOutput.h"
#include "platform/Task.h"

#include <QList>

#include <tl/expected.hpp>

#include <functional>
#include <optional>

namespace quillmere {

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
    /// The error is the system's status code. An adapter whose listeners outlive the connection to
    /// the sound server has none to give.
    virtual tl::expected<Task, int> onDefaultOutputChanged(std::function<void()> listener) = 0;

    /// Absent when the device is gone. Knows the default output, and while somebody listens to the
    /// outputs, those.
    virtual std::optional<AudioDevice> describe(AudioDeviceID device) const = 0;

    /// Every device sound can be sent to, in the sound server's order, without the placeholder the
    /// server offers when it has none. Kept only while somebody listens (empty before the first
    /// report): the list of a page that is mostly closed is not worth following all day.
    virtual QList<AudioOutput> outputs() const = 0;

    /// Called on real changes of outputs(), and with the first list.
    virtual Task onOutputsChanged(std::function<void()> listener) = 0;

    /// Makes it the default output. What plays on the former default goes along; a stream that was
    /// tied to one device by hand stays there. An unknown device changes nothing.
    virtual void setDefaultOutput(AudioDeviceID device) = 0;

    /// True: the first snapshot of a connection is there, or a default device appeared where there
    /// was none; in both cases after the default output's own listeners. False: the server went
    /// away. So a user of the default device can start on every true and stop on false.
    virtual Task onAvailabilityChanged(std::function<void(bool available)> listener) = 0;
    virtual bool isAvailable() const = 0;
};

} // namespace quillmere
