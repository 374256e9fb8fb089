#pragma once

#include "platform/Task.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace quillmere {

/// The battery of a connected Bluetooth device.
struct BluetoothBattery {
    QString address{}; ///< "AA:BB:CC:DD:EE:FF"
    QString name{};    ///< as the user calls the device; empty while nobody tells it
    int percent = 0;   ///< whole percent, 0..100

    bool operator==(const BluetoothBattery &) const = default;
};

/// The batteries of connected Bluetooth devices. Looked at only while somebody listens, so that a
/// machine without such devices pays nothing. Everything on the main thread.
class BluetoothBatteries
{
public:
    virtual ~BluetoothBatteries() = default;

    /// Whole percent, 0..100, of the device with this address ("AA:BB:CC:DD:EE:FF"). Absent when it
    /// does not tell, is not connected, or nobody listens. Answers at once.
    virtual std::optional<int> percent(const QString &address) const = 0;

    /// Every battery known; empty while nobody listens. Answers at once.
    virtual QList<BluetoothBattery> batteries() const = 0;

    /// Called after any battery appeared, changed or went; a device's level often comes seconds
    /// after its connection. Never called from within onChanged().
    virtual Task onChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
