#include "helpers/Json.h"

#include <algorithm>
#include <cstdint>

namespace quillmere::json {

namespace {

const Value null;

constexpr int deepest = 16; // nothing that is read here lies so deep

} // namespace

Value parse(std::string_view text, std::initializer_list<std::string_view> names)
{
    const auto keep = [&names](int depth, Value::parse_event_t event, const Value &parsed) {
        if (event != Value::parse_event_t::key)
            return depth <= deepest;
        return std::ranges::find(names, parsed.get_ref<const std::string &>()) != names.end();
    };
    return Value::parse(text.begin(), text.end(), keep, false);
}

const Value &member(const Value &object, const char *name)
{
    if (!object.is_object())
        return null;
    const auto found = object.find(name);
    return found == object.end() ? null : *found;
}

const std::vector<Value> &elements(const Value &array)
{
    static const std::vector<Value> none;
    return array.is_array() ? array.get_ref<const std::vector<Value> &>() : none;
}

std::string text(const Value &value)
{
    return value.is_string() ? value.get<std::string>() : std::string();
}

const Value &elementAt(const std::vector<Value> &array, const Value &number)
{
    if (array.empty())
        return null;
    const auto size = static_cast<std::int64_t>(array.size());
    const auto wanted = number.is_number_integer() ? number.get<std::int64_t>() : size;
    return array[static_cast<std::size_t>(wanted < 1 || wanted > size ? size : wanted) - 1];
}

} // namespace quillmere::json
