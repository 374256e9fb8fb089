#pragma once

#include "platform/AudioHardware.h"
#include "platform/Listeners.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quillmere {

/// Output devices that a test plugs in, pulls out and turns up. Like a real server it tells a
/// change of its own making by setVolume, too, but late: when the test says so with
/// tellOwnChanges().
class FakeAudioHardware : public AudioHardware
{
public:
    struct Device {
        std::optional<float> mainVolume = std::nullopt;
        std::optional<float> scalar = std::nullopt;
        AudioDevice facts{};
    };
    struct Write {
        AudioDeviceID device;
        float level;
        bool operator==(const Write &) const = default;
    };

    AudioDeviceID add(Device device)
    {
        devices_.emplace(++lastID_, std::move(device));
        outputsListeners_.notify();
        return lastID_;
    }

    /// 0 = none.
    void setDefault(AudioDeviceID device)
    {
        default_ = device;
        defaultOutputListeners_.notify();
        outputsListeners_.notify();
    }

    void change(AudioDeviceID device, AudioProperty property, std::optional<float> level)
    {
        field(devices_.at(device), property) = level;
        volumeListeners_.notify(device, property);
    }

    void remove(AudioDeviceID device)
    {
        devices_.erase(device);
        outputsListeners_.notify();
    }

    /// From now on nobody can listen to the default output: registering gives this status.
    void refuseListeners(int status) { refusal_ = status; }

    void tellOwnChanges()
    {
        for (const Write &write : std::exchange(untold_, {}))
            volumeListeners_.notify(write.device, AudioProperty::VirtualMainVolume);
    }

    void setAvailable(bool available)
    {
        available_ = available;
        availabilityListeners_.notify(available);
    }

    const std::vector<Write> &writes() const { return writes_; }
    bool hasListeners() const
    {
        return !volumeListeners_.isEmpty() || !defaultOutputListeners_.isEmpty();
    }

    AudioDeviceID defaultOutputDevice() const override { return default_; }
    std::optional<float> volume(AudioDeviceID device, AudioProperty property) const override
    {
        const auto found = devices_.find(device);
        if (found == devices_.end())
            return std::nullopt;
        Device copy = found->second;
        return field(copy, property);
    }
    void setVolume(AudioDeviceID device, float level) override
    {
        const auto found = devices_.find(device);
        if (found == devices_.end())
            return;
        found->second.mainVolume = std::clamp(level, 0.0F, 1.0F);
        writes_.push_back({device, level});
        untold_.push_back({device, level});
    }
    Task onVolumeChanged(AudioDeviceID device, AudioProperty property,
                         std::function<void()> listener) override
    {
        return volumeListeners_.add([=](AudioDeviceID changed, AudioProperty changedProperty) {
            if (changed == device && changedProperty == property)
                listener();
        });
    }
    tl::expected<Task, int> onDefaultOutputChanged(std::function<void()> listener) override
    {
        if (refusal_)
            return tl::unexpected(*refusal_);
        return defaultOutputListeners_.add(std::move(listener));
    }
    std::optional<AudioDevice> describe(AudioDeviceID device) const override
    {
        const auto found = devices_.find(device);
        return found == devices_.end() ? std::nullopt : std::optional(found->second.facts);
    }
    QList<AudioOutput> outputs() const override
    {
        QList<AudioOutput> list;
        for (const auto &[id, device] : devices_)
            list.append({id, device.facts.name.value_or(QString()), device.facts.formFactor,
                         device.facts.isBluetooth, id == default_});
        return list;
    }
    Task onOutputsChanged(std::function<void()> listener) override
    {
        return outputsListeners_.add(std::move(listener));
    }
    void setDefaultOutput(AudioDeviceID device) override
    {
        if (devices_.contains(device))
            setDefault(device);
    }
    Task onAvailabilityChanged(std::function<void(bool)> listener) override
    {
        return availabilityListeners_.add(std::move(listener));
    }
    bool isAvailable() const override { return available_; }

private:
    static std::optional<float> &field(Device &device, AudioProperty property)
    {
        return property == AudioProperty::VirtualMainVolume ? device.mainVolume : device.scalar;
    }

    std::map<AudioDeviceID, Device> devices_;
    AudioDeviceID lastID_ = 0;
    AudioDeviceID default_ = 0;
    bool available_ = true;
    std::vector<Write> writes_;
    std::vector<Write> untold_;
    Listeners<AudioDeviceID, AudioProperty> volumeListeners_;
    std::optional<int> refusal_;
    Listeners<> defaultOutputListeners_;
    Listeners<> outputsListeners_;
    Listeners<bool> availabilityListeners_;
};

} // namespace quillmere
