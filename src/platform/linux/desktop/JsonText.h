#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <nlohmann/json.hpp>
#include <tl/expected.hpp>

#include <optional>

namespace quillmere {

/// Keeps the order of keys, 64-bit integers and doubles, so that what we do not know in a file
/// survives that we write it.
using Json = nlohmann::ordered_json;

/// The limits of a file we read, far above what a person's settings need. They bound the time and
/// the memory a hostile file can take: objects that keep their order are searched from the front.
inline constexpr qint64 largestJson = qint64{1} << 20; // bytes
inline constexpr int deepestJson = 32;
inline constexpr int mostJsonKeys = 10'000;

/// The object in `bytes`, or why there is none. Blank text is an empty object.
tl::expected<Json, QString> parseObject(const QByteArray &bytes);

QByteArray toText(const Json &object);

/// Booleans, 64-bit integers, doubles, texts, lists and maps; null is an invalid QVariant. Integers
/// beyond the signed range become doubles.
QVariant toVariant(const Json &value);

/// Absent for what has no counterpart: other types, numbers that are not finite, too deep nesting.
std::optional<Json> toJson(const QVariant &value);

} // namespace quillmere
