#pragma once

#include <QString>

#include <variant>

namespace quillmere {

/// A JSON scalar; a list or an object reads as null. A number that is whole and fits is an integer,
/// however it is written.
using AnyCodableValue = std::variant<QString, qint64, double, bool, std::nullptr_t>;

} // namespace quillmere
