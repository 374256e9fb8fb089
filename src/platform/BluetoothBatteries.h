#pragma once

#include "platform/Task.h"

#include <QString>

#include <functional>
#include <optional>

namespace quillmere {

/// The batteries of connected Bluetooth devices. Looked at only while somebody listens, so that a
/// machine without such devices pays nothing. Everything on the main thread.
class BluetoothBatteries
{
public:
    virtual ~BluetoothBatteries() = default;

    /// Whole percent, 0..100, of the device with this address ("AA:BB:CC:DD:EE:FF"). Absent when it
    /// does not tell, is not connected, or nobody listens. Answers at once.
    virtual std::optional<int> percent(const QString &address) const = 0;

    /// Called after any battery appeared, changed or went; a device's level often comes seconds
    /// after its connection. Never called from within onChanged().
    virtual Task onChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
