#pragma once

#include <optional>

namespace quillmere {

constexpr double fahrenheit(double celsius)
{
    return celsius * 9 / 5 + 32;
}

constexpr double milesPerHour(double kilometresPerHour)
{
    return kilometresPerHour * 0.621371;
}

/// The same for a value that may be absent.
constexpr std::optional<double> converted(const std::optional<double> &value,
                                          double (*convert)(double))
{
    return value ? std::optional(convert(*value)) : std::nullopt;
}

} // namespace quillmere
