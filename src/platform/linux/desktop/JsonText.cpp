#include "platform/linux/desktop/JsonText.h"

#include <cmath>
#include <limits>
#include <vector>

namespace quillmere {

namespace {

/// Builds the value while it is parsed and gives up at the first limit exceeded.
class LimitedBuilder : public nlohmann::json_sax<Json>
{
public:
    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t &) override { return add(value); }
    bool string(string_t &value) override { return add(std::move(value)); }
    bool binary(binary_t &) override { return false; }
    bool start_object(std::size_t) override { return open(Json::object()); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t &value) override
    {
        key_ = std::move(value);
        return ++keys_ <= mostJsonKeys || refuse(QStringLiteral("too many keys"));
    }
    bool parse_error(std::size_t position, const std::string &, const Json::exception &) override
    {
        return refuse(QStringLiteral("not JSON from byte %1 on").arg(position));
    }

    Json result;
    QString problem;

private:
    bool add(Json value)
    {
        place(std::move(value));
        return true;
    }

    bool open(Json container)
    {
        if (open_.size() >= deepestJson)
            return refuse(QStringLiteral("nested too deeply"));
        open_.push_back(place(std::move(container)));
        return true;
    }

    bool close()
    {
        open_.pop_back();
        return true;
    }

    /// The parent of an open container does not grow before that is closed, so pointers hold.
    Json *place(Json value)
    {
        if (open_.empty()) {
            result = std::move(value);
            return &result;
        }
        Json &parent = *open_.back();
        if (parent.is_array()) {
            parent.push_back(std::move(value));
            return &parent.back();
        }
        Json &slot = parent[key_];
        slot = std::move(value);
        return &slot;
    }

    bool refuse(const QString &reason)
    {
        problem = reason;
        return false;
    }

    std::vector<Json *> open_;
    std::string key_;
    int keys_ = 0;
};

std::optional<Json> toJson(const QVariant &value, int depth);

std::optional<Json> toJsonArray(const QVariantList &list, int depth)
{
    Json array = Json::array();
    for (const auto &element : list) {
        auto json = toJson(element, depth);
        if (!json)
            return std::nullopt;
        array.push_back(std::move(*json));
    }
    return array;
}

std::optional<Json> toJsonObject(const QVariantMap &map, int depth)
{
    if (map.size() > mostJsonKeys)
        return std::nullopt;
    Json object = Json::object();
    for (auto it = map.begin(); it != map.end(); ++it) {
        auto json = toJson(it.value(), depth);
        if (!json)
            return std::nullopt;
        object[it.key().toStdString()] = std::move(*json);
    }
    return object;
}

std::optional<Json> toJson(const QVariant &value, int depth)
{
    if (depth >= deepestJson)
        return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return Json(nullptr);
    case QMetaType::Bool:
        return Json(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return Json(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return Json(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? std::optional(Json(value.toDouble()))
                                               : std::nullopt;
    case QMetaType::QString:
        return Json(value.toString().toStdString());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return toJsonArray(value.toList(), depth + 1);
    case QMetaType::QVariantMap:
        return toJsonObject(value.toMap(), depth + 1);
    default:
        return std::nullopt;
    }
}

QVariant fromUnsigned(std::uint64_t value)
{
    constexpr auto limit = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
    return value <= limit ? QVariant(static_cast<qint64>(value))
                          : QVariant(static_cast<double>(value));
}

QVariantList toList(const Json &array)
{
    QVariantList list;
    list.reserve(static_cast<qsizetype>(array.size()));
    for (const auto &element : array)
        list.append(toVariant(element));
    return list;
}

QVariantMap toMap(const Json &object)
{
    QVariantMap map;
    for (const auto &[key, value] : object.items())
        map.insert(QString::fromStdString(key), toVariant(value));
    return map;
}

} // namespace

tl::expected<Json, QString> parseObject(const QByteArray &bytes)
{
    if (bytes.size() > largestJson)
        return tl::unexpected(QStringLiteral("too large"));
    if (bytes.trimmed().isEmpty())
        return Json::object();
    LimitedBuilder builder;
    if (!Json::sax_parse(bytes.begin(), bytes.end(), &builder))
        return tl::unexpected(builder.problem);
    if (!builder.result.is_object())
        return tl::unexpected(QStringLiteral("not a JSON object"));
    return std::move(builder.result);
}

QByteArray toText(const Json &object)
{
    constexpr int indent = 4;
    const auto text = object.dump(indent, ' ', false, Json::error_handler_t::replace);
    return QByteArray::fromStdString(text) + '\n';
}

QVariant toVariant(const Json &value)
{
    switch (value.type()) {
    case Json::value_t::boolean:
        return value.get<bool>();
    case Json::value_t::number_integer:
        return static_cast<qint64>(value.get<std::int64_t>());
    case Json::value_t::number_unsigned:
        return fromUnsigned(value.get<std::uint64_t>());
    case Json::value_t::number_float:
        return value.get<double>();
    case Json::value_t::string:
        return QString::fromStdString(value.get_ref<const std::string &>());
    case Json::value_t::array:
        return toList(value);
    case Json::value_t::object:
        return toMap(value);
    default:
        return {};
    }
}

std::optional<Json> toJson(const QVariant &value)
{
    return toJson(value, 1);
}

} // namespace quillmere
