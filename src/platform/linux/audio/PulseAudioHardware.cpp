#include "platform/linux/audio/PulseAudioHardware.h"

#include "platform/linux/audio/PulseVolume.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

PulseAudioHardware::PulseAudioHardware(RunLoop &runLoop)
    : connection_(runLoop, {.ready = [this](pa_context &context) { connected(context); },
                            .lost = [this] { disconnected(); },
                            .changed = [this](const auto &event) { changed(event); }})
{
}

AudioDeviceID PulseAudioHardware::defaultOutputDevice() const
{
    return device_ ? device_->id : 0;
}

std::optional<float> PulseAudioHardware::volume(AudioDeviceID device, AudioProperty property) const
{
    if (!device_ || device_->id != device)
        return std::nullopt;
    if (property == AudioProperty::VirtualMainVolume)
        return device_->level();
    return shownLevel(device_->sink.volume.values[0], device_->sink.muted);
}

void PulseAudioHardware::setVolume(AudioDeviceID device, float level)
{
    if (!device_ || device_->id != device || std::isnan(level))
        return;
    level = std::clamp(level, 0.0F, 1.0F);
    const PulseSink &sink = device_->sink;
    if (level == 0 && sink.muted)
        return; // silent already, and unmuting by hand brings back the level from before
    const pa_cvolume channels = scaledTo(level, device_->balance);
    letRun(pa_context_set_sink_volume_by_index(context_, sink.index, &channels, nullptr, nullptr));
    if (sink.muted) // after the volume, so that the old one is not heard for a moment
        letRun(pa_context_set_sink_mute_by_index(context_, sink.index, 0, nullptr, nullptr));
}

Task PulseAudioHardware::onVolumeChanged(AudioDeviceID device, AudioProperty property,
                                         std::function<void()> listener)
{
    // Every sink has a main volume. A listener of both properties must hear a change once, as it
    // does from hardware with one control, so the channel's own volume stays silent.
    if (property == AudioProperty::VolumeScalar)
        return {};
    return volumeListeners_.add([device, listener = std::move(listener)](AudioDeviceID changed) {
        if (changed == device)
            listener();
    });
}

tl::expected<Task, int> PulseAudioHardware::onDefaultOutputChanged(std::function<void()> listener)
{
    return defaultOutputListeners_.add(std::move(listener));
}

std::optional<AudioDevice> PulseAudioHardware::describe(AudioDeviceID device) const
{
    const PulseSink *sink = find(device);
    return sink ? std::optional(sink->device) : std::nullopt;
}

QList<AudioOutput> PulseAudioHardware::outputs() const
{
    QList<AudioOutput> list;
    if (outputsListeners_.isEmpty())
        return list;
    for (const auto &[id, sink] : outputs_)
        list.append({id, sink.device.name.value_or(QString::fromUtf8(sink.name)),
                     sink.device.formFactor, sink.device.isBluetooth, id == defaultOutputDevice()});
    return list;
}

Task PulseAudioHardware::onOutputsChanged(std::function<void()> listener)
{
    if (outputsListeners_.isEmpty()) {
        outputs_.clear();
        if (sinkList_)
            sinkList_->ask();
    }
    return outputsListeners_.add(std::move(listener));
}

void PulseAudioHardware::setDefaultOutput(AudioDeviceID device)
{
    // Both servers move what follows the default. Moving streams one by one would tie each of them
    // to this device for good.
    if (const PulseSink *sink = find(device))
        letRun(pa_context_set_default_sink(context_, sink->name.constData(), nullptr, nullptr));
}

Task PulseAudioHardware::onAvailabilityChanged(std::function<void(bool)> listener)
{
    return availabilityListeners_.add(std::move(listener));
}

void PulseAudioHardware::connected(pa_context &context)
{
    context_ = &context;
    sinkList_.emplace(context, [this](auto sinks) { updateOutputs(std::move(sinks)); });
    if (!outputsListeners_.isEmpty())
        sinkList_->ask();
    defaultSink_.emplace(context, [this](const auto &sink) {
        const bool hadDevice = device_.has_value();
        const bool isFirst = !std::exchange(available_, true);
        update(sink);
        if (isFirst || (!hadDevice && device_))
            availabilityListeners_.notify(true);
    });
}

void PulseAudioHardware::disconnected()
{
    defaultSink_.reset();
    sinkList_.reset();
    context_ = nullptr;
    ids_.clear();
    const bool wasAvailable = std::exchange(available_, false);
    update(std::nullopt);
    updateOutputs({});
    if (wasAvailable)
        availabilityListeners_.notify(false);
}

void PulseAudioHardware::changed(const PulseConnection::Event &event)
{
    if (event.facility == PA_SUBSCRIPTION_EVENT_SINK && event.type == PA_SUBSCRIPTION_EVENT_REMOVE)
        ids_.erase(event.index);
    defaultSink_->handle(event);
    if (event.facility == PA_SUBSCRIPTION_EVENT_SINK && !outputsListeners_.isEmpty())
        sinkList_->ask();
}

void PulseAudioHardware::update(const std::optional<PulseSink> &sink)
{
    const auto before = std::exchange(device_, describe(sink));
    const AudioDeviceID idBefore = before ? before->id : 0;
    if (defaultOutputDevice() != idBefore) {
        defaultOutputListeners_.notify();
        outputsListeners_.notify();
    } else if (device_ && device_->level() != before->level()) {
        volumeListeners_.notify(device_->id);
    }
}

void PulseAudioHardware::updateOutputs(std::vector<PulseSink> sinks)
{
    const auto before = outputs();
    outputs_.clear();
    for (PulseSink &sink : sinks)
        if (!sink.isPlaceholder())
            outputs_.push_back({idOf(sink.index), std::move(sink)});
    if (outputs() != before)
        outputsListeners_.notify();
}

const PulseSink *PulseAudioHardware::find(AudioDeviceID device) const
{
    if (device_ && device_->id == device)
        return &device_->sink;
    const auto found = std::ranges::find(outputs_, device, &Output::id);
    return found == outputs_.end() ? nullptr : &found->sink;
}

std::optional<PulseAudioHardware::Device>
PulseAudioHardware::describe(const std::optional<PulseSink> &sink)
{
    if (!sink)
        return std::nullopt;
    Device device{idOf(sink->index), *sink, sink->volume};
    // Channels that are all silent have no balance: keep the one from before.
    const bool isSilent = pa_cvolume_max(&sink->volume) == PA_VOLUME_MUTED;
    if (isSilent && device_ && device_->id == device.id &&
        device_->balance.channels == sink->volume.channels)
        device.balance = device_->balance;
    return device;
}

AudioDeviceID PulseAudioHardware::idOf(std::uint32_t sinkIndex)
{
    const auto [entry, isNew] = ids_.try_emplace(sinkIndex, lastID_ + 1);
    if (isNew)
        ++lastID_;
    return entry->second;
}

float PulseAudioHardware::Device::level() const
{
    return shownLevel(pa_cvolume_max(&sink.volume), sink.muted);
}

} // namespace quillmere
