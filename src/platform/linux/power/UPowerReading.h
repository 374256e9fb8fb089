#pragma once

#include "platform/PowerSources.h"

#include <QVariantMap>

namespace quillmere {

/// What UPower has told of the charger and of the batteries, several counted as one. A value of
/// another type or out of its range is logged and changes nothing.
class UPowerReading
{
public:
    void takeDaemon(const QVariantMap &properties);
    void takeDisplayDevice(const QVariantMap &properties);

    /// Absent without a battery; a UPS is none.
    std::optional<BatteryStatus> status() const;

private:
    bool onBattery_ = true;
    bool isPresent_ = false;
    unsigned type_ = 0;
    unsigned state_ = 0;
    double percentage_ = 0;
};

} // namespace quillmere
