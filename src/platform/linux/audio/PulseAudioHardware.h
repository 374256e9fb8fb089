#pragma once

#include "platform/AudioHardware.h"
#include "platform/Listeners.h"
#include "platform/linux/audio/PulseDefaultSink.h"
#include "platform/linux/audio/PulseSinkList.h"

#include <map>
#include <vector>

namespace quillmere {

/// The output devices of PulseAudio, or of PipeWire through its PulseAudio face.
///
/// Only the default output is followed: other devices tell no volume, and the list of all is asked
/// for after events only while somebody listens to it. Levels are whole percent,
/// amplification above 100 % shows full, a muted device shows 0.
class PulseAudioHardware : public AudioHardware
{
public:
    explicit PulseAudioHardware(RunLoop &runLoop);

    AudioDeviceID defaultOutputDevice() const override;
    std::optional<float> volume(AudioDeviceID device, AudioProperty property) const override;
    void setVolume(AudioDeviceID device, float level) override;
    Task onVolumeChanged(AudioDeviceID device, AudioProperty property,
                         std::function<void()> listener) override;
    tl::expected<Task, int> onDefaultOutputChanged(std::function<void()> listener) override;
    std::optional<AudioDevice> describe(AudioDeviceID device) const override;
    QList<AudioOutput> outputs() const override;
    Task onOutputsChanged(std::function<void()> listener) override;
    void setDefaultOutput(AudioDeviceID device) override;
    Task onAvailabilityChanged(std::function<void(bool)> listener) override;
    bool isAvailable() const override { return available_; }

    /// The connection, for questions about other things than devices; null while there is none.
    pa_context *context() const { return context_; }

private:
    struct Output {
        AudioDeviceID id;
        PulseSink sink;
    };
    struct Device {
        AudioDeviceID id;
        PulseSink sink;
        pa_cvolume balance; ///< the last channel volumes that were not all silent
        float level() const;
    };

    void connected(pa_context &context);
    void disconnected();
    void changed(const PulseConnection::Event &event);
    void update(const std::optional<PulseSink> &sink);
    void updateOutputs(std::vector<PulseSink> sinks);
    const PulseSink *find(AudioDeviceID device) const;
    std::optional<Device> describe(const std::optional<PulseSink> &sink);
    AudioDeviceID idOf(std::uint32_t sinkIndex);

    std::optional<Device> device_;
    std::vector<Output> outputs_; // empty or out of date while nobody listens
    bool available_ = false;
    AudioDeviceID lastID_ = 0;
    std::map<std::uint32_t, AudioDeviceID> ids_; // by sink index, which a later sink may get again
    Listeners<AudioDeviceID> volumeListeners_;
    Listeners<> defaultOutputListeners_;
    Listeners<> outputsListeners_;
    Listeners<bool> availabilityListeners_;
    pa_context *context_ = nullptr;
    PulseConnection connection_;
    std::optional<PulseDefaultSink> defaultSink_;
    std::optional<PulseSinkList> sinkList_;
};

} // namespace quillmere
