#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace quillmere {

/// An output device as long as the sound server runs; 0 = none. Ids are not reused.
using AudioDeviceID = std::uint32_t;

enum class AudioFormFactor { Other, Speaker, Headphones, Headset, Car, Television };

/// What a device tells about itself.
struct AudioDevice {
    std::optional<QString> name{}; ///< as a person calls it, never empty
    AudioFormFactor formFactor = AudioFormFactor::Other;
    bool isBluetooth = false;
    QString bluetoothAddress{}; ///< "AA:BB:CC:DD:EE:FF"; empty for other devices, or if not told

    bool operator==(const AudioDevice &) const = default;
};

/// One line of a list to choose the output from.
struct AudioOutput {
    AudioDeviceID id = 0;
    QString name{}; ///< for a device without one, the sound server's own name of it
    AudioFormFactor formFactor = AudioFormFactor::Other;
    bool isBluetooth = false;
    bool isDefault = false;

    bool operator==(const AudioOutput &) const = default;
};

} // namespace quillmere
