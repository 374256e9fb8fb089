#include "platform/linux/power/UPowerReading.h"

#include <QDebug>

#include <cmath>

namespace quillmere {

namespace {

constexpr unsigned batteryType = 2;
constexpr unsigned chargingState = 1;

bool isAcceptable(double percentage)
{
    return percentage >= 0 && percentage <= 100;
}
template <class Value>
bool isAcceptable(Value)
{
    return true;
}

template <class Value>
void take(const QVariantMap &properties, const char *key, Value &value)
{
    const auto found = properties.constFind(QLatin1StringView(key));
    if (found == properties.cend())
        return;
    if (found->metaType() != QMetaType::fromType<Value>() || !isAcceptable(found->value<Value>()))
        qWarning() << "[Battery] Ignored from UPower:" << key << *found;
    else
        value = found->value<Value>();
}

} // namespace

void UPowerReading::takeDaemon(const QVariantMap &properties)
{
    take(properties, "OnBattery", onBattery_);
}

void UPowerReading::takeDisplayDevice(const QVariantMap &properties)
{
    take(properties, "IsPresent", isPresent_);
    take(properties, "Type", type_);
    take(properties, "State", state_);
    take(properties, "Percentage", percentage_);
}

std::optional<BatteryStatus> UPowerReading::status() const
{
    if (!isPresent_ || type_ != batteryType)
        return std::nullopt;
    return BatteryStatus{.level = static_cast<int>(std::lround(percentage_)),
                         .isCharging = state_ == chargingState,
                         .isPluggedIn = !onBattery_};
}

} // namespace quillmere
