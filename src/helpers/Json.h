#pragma once

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Reading JSON that others wrote: anything may be missing or of another type.
namespace quillmere::json {

using Value = nlohmann::json;

/// Discarded (Value::is_discarded) if it is no JSON. Members with other names than these are not
/// kept, which makes a browser's whole session small.
Value parse(std::string_view text, std::initializer_list<std::string_view> names);

/// Null if there is no such member.
const Value &member(const Value &object, const char *name);

/// Empty if it is no array.
const std::vector<Value> &elements(const Value &array);

/// Empty if it is no text.
std::string text(const Value &value);

/// The element that a number counting from 1 means; the last one if it means none, null if there
/// are none.
const Value &elementAt(const std::vector<Value> &array, const Value &number);

} // namespace quillmere::json
