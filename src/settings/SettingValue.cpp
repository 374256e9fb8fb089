#include "settings/SettingValue.h"

#include <cmath>
#include <limits>

namespace quillmere {

namespace {

bool isInteger(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return true;
    default:
        return false;
    }
}

bool isUnsigned(int type)
{
    return type == QMetaType::ULongLong || type == QMetaType::ULong;
}

bool isFloating(int type)
{
    return type == QMetaType::Double || type == QMetaType::Float;
}

} // namespace

std::optional<bool> SettingValue<bool>::read(const QVariant &stored)
{
    if (stored.typeId() == QMetaType::Bool)
        return stored.toBool();
    if (const auto number = SettingValue<double>::read(stored))
        return *number != 0;
    return std::nullopt;
}

std::optional<double> SettingValue<double>::read(const QVariant &stored)
{
    if (!isInteger(stored.typeId()) && !isFloating(stored.typeId()))
        return std::nullopt;
    const double value = stored.toDouble();
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<qint64> SettingValue<qint64>::read(const QVariant &stored)
{
    if (isUnsigned(stored.typeId())) {
        const auto value = stored.toULongLong();
        const auto limit = static_cast<qulonglong>(std::numeric_limits<qint64>::max());
        return value <= limit ? std::optional(static_cast<qint64>(value)) : std::nullopt;
    }
    if (isInteger(stored.typeId()))
        return stored.toLongLong();
    if (!isFloating(stored.typeId()))
        return std::nullopt;
    const double value = stored.toDouble();
    constexpr double limit = 9223372036854775808.0; // 2^63, the first double that does not fit
    if (value != std::trunc(value) || value < -limit || value >= limit)
        return std::nullopt;
    return static_cast<qint64>(value);
}

std::optional<QString> SettingValue<QString>::read(const QVariant &stored)
{
    if (stored.typeId() != QMetaType::QString)
        return std::nullopt;
    return stored.toString();
}

} // namespace quillmere
