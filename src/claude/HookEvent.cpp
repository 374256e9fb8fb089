#include "claude/HookEvent.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace quillmere {

namespace {

using Json = nlohmann::json;

constexpr std::size_t deepest = 1'000; // levels of nesting

enum class Kind { RequiredText, Text, Object, Truth };

enum Key { SessionId, Cwd, Event, Status, Tool, ToolUseId, UserPrompt, PermissionMode };
constexpr std::size_t textKeys = PermissionMode + 1;
enum OtherKey { ToolInput = textKeys, Interactive, Unknown };

struct KeyRule {
    const char *name;
    Kind kind;
};

constexpr std::array<KeyRule, Unknown> keys{{{"session_id", Kind::RequiredText},
                                             {"cwd", Kind::RequiredText},
                                             {"event", Kind::RequiredText},
                                             {"status", Kind::RequiredText},
                                             {"tool", Kind::Text},
                                             {"tool_use_id", Kind::Text},
                                             {"user_prompt", Kind::Text},
                                             {"permission_mode", Kind::Text},
                                             {"tool_input", Kind::Object},
                                             {"interactive", Kind::Truth}}};

QString quoted(std::size_t key)
{
    return u'"' + QLatin1StringView(keys.at(key).name) + u'"';
}

QString toText(const std::string &utf8)
{
    // So many bytes hold that many units at least, so the sequence torn at their end is cut off.
    constexpr auto enough = static_cast<std::size_t>(longestHookText) * 4;
    auto text =
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(std::min(utf8.size(), enough)));
    if (text.size() <= longestHookText)
        return text;
    text.truncate(longestHookText);
    if (text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

AnyCodableValue toNumber(double value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (value == std::floor(value) && value >= -limit && value < limit)
        return static_cast<qint64>(value);
    return value;
}

AnyCodableValue toNumber(std::uint64_t value)
{
    if (value > static_cast<std::uint64_t>(std::numeric_limits<qint64>::max()))
        return static_cast<double>(value);
    return static_cast<qint64>(value);
}

/// Takes what it knows from the message as it is parsed, and never builds the rest.
class HookEventReader : public nlohmann::json_sax<Json>
{
public:
    bool null() override { return takeValue(nullptr); }
    bool boolean(bool value) override { return takeValue(value); }
    bool number_integer(number_integer_t value) override { return takeValue(qint64{value}); }
    bool number_unsigned(number_unsigned_t value) override { return takeValue(toNumber(value)); }
    bool number_float(number_float_t value, const string_t &) override
    {
        return takeValue(toNumber(value));
    }
    bool string(string_t &value) override { return takeText(value); }
    bool binary(binary_t &) override { return false; }
    bool start_object(std::size_t) override { return open(true); }
    bool start_array(std::size_t) override { return open(false); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t &name) override
    {
        if (depth_ == 1)
            key_ = static_cast<std::size_t>(
                std::find_if(keys.begin(), keys.end(),
                             [&](const KeyRule &rule) { return name == rule.name; }) -
                keys.begin());
        else if (isInToolInput())
            inputKey_ = toText(name);
        return true;
    }

    bool parse_error(std::size_t position, const std::string &, const Json::exception &) override
    {
        return refuse(QStringLiteral("not JSON from byte %1 on").arg(position));
    }

    tl::expected<HookEvent, QString> result()
    {
        for (std::size_t key = 0; key < textKeys && problem_.isEmpty(); ++key) {
            if (keys.at(key).kind == Kind::RequiredText && !texts_.at(key))
                problem_ = QStringLiteral("no ") + quoted(key);
        }
        if (!problem_.isEmpty())
            return tl::unexpected(problem_);
        return HookEvent{*texts_[SessionId], *texts_[Cwd],       *texts_[Event],
                         *texts_[Status],    texts_[Tool],       std::move(toolInput_),
                         texts_[ToolUseId],  texts_[UserPrompt], texts_[PermissionMode],
                         interactive_};
    }

    bool refuse(const QString &problem)
    {
        if (problem_.isEmpty())
            problem_ = problem;
        return false;
    }

private:
    bool isInToolInput() const { return depth_ == 2 && key_ == ToolInput; }

    bool takeText(const std::string &value)
    {
        if (depth_ == 1 && key_ < textKeys) {
            texts_.at(key_) = toText(value);
            return true;
        }
        return isInToolInput() ? takeInput(toText(value)) : takeOther(false);
    }

    bool takeValue(const AnyCodableValue &value)
    {
        if (isInToolInput())
            return takeInput(value);
        const bool isNull = std::holds_alternative<std::nullptr_t>(value);
        const auto *truth = std::get_if<bool>(&value);
        if (depth_ == 1 && key_ == Interactive && (truth || isNull)) {
            interactive_ = truth ? std::optional(*truth) : std::nullopt;
            return true;
        }
        return takeOther(isNull);
    }

    bool takeInput(const AnyCodableValue &value)
    {
        if (toolInput_->size() < mostToolInputs || toolInput_->contains(inputKey_))
            toolInput_->insert(inputKey_, value);
        return true;
    }

    /// A value that is not what its key asks for.
    bool takeOther(bool isNull)
    {
        if (depth_ == 0)
            return refuse(QStringLiteral("not an object"));
        if (depth_ > 1 || key_ == Unknown)
            return true;
        if (!isNull || keys.at(key_).kind == Kind::RequiredText)
            return refuse(quoted(key_) + QStringLiteral(" has the wrong type"));
        if (key_ == ToolInput)
            toolInput_.reset();
        else
            texts_.at(key_).reset();
        return true;
    }

    bool open(bool isObject)
    {
        if (depth_ == 1 && key_ == ToolInput && isObject)
            toolInput_.emplace();
        else if (isInToolInput())
            takeInput(nullptr);
        else if ((depth_ > 0 || !isObject) && !takeOther(false))
            return false;
        return ++depth_ <= deepest || refuse(QStringLiteral("nested too deeply"));
    }

    bool close()
    {
        --depth_;
        return true;
    }

    std::size_t depth_ = 0; ///< 1 within the message itself
    std::size_t key_ = Unknown;
    QString inputKey_;
    std::array<std::optional<QString>, textKeys> texts_;
    std::optional<QHash<QString, AnyCodableValue>> toolInput_;
    std::optional<bool> interactive_;
    QString problem_;
};

} // namespace

tl::expected<HookEvent, QString> decodeHookEvent(const QByteArray &message)
{
    HookEventReader reader;
    if (!Json::sax_parse(message.begin(), message.end(), &reader))
        reader.refuse(QStringLiteral("not JSON"));
    return reader.result();
}

} // namespace quillmere
