#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <cmath>
#include <optional>

/// Values of an answer as they are, without conversions between kinds; what is of another kind, or
/// larger than any weather, reads as absent.
namespace quillmere::json {

inline std::optional<double> number(const QJsonValue &value)
{
    constexpr double largest = 1e6;
    if (!value.isDouble() || !(std::abs(value.toDouble()) <= largest))
        return std::nullopt;
    return value.toDouble();
}

/// Also of "3.0", for some servers write integers so.
inline std::optional<int> integer(const QJsonValue &value)
{
    const auto amount = number(value);
    if (!amount || *amount != std::trunc(*amount))
        return std::nullopt;
    return static_cast<int>(*amount);
}

/// A fraction as a share of a hundred; absent beyond 0..1.
inline std::optional<int> percent(const std::optional<double> &fraction)
{
    if (!fraction || *fraction < 0 || *fraction > 1)
        return std::nullopt;
    return static_cast<int>(std::lround(*fraction * 100));
}

/// Metres as kilometres.
inline std::optional<double> kilometres(const QJsonValue &value)
{
    const auto metres = number(value);
    return metres ? std::optional(*metres / 1000) : std::nullopt;
}

} // namespace quillmere::json
