#include "claude/HookSettings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace quillmere {

namespace {

using Json = nlohmann::json; // sorts keys

constexpr std::array events{"UserPromptSubmit", "SessionStart",      "PreToolUse", "PostToolUse",
                            "PreCompact",       "PermissionRequest", "Stop",       "SubagentStop",
                            "SessionEnd"};
constexpr const char *ourMark = "quillmere-hook";
constexpr int deepest = 200; ///< levels of nesting that are safe to walk down

struct Settings {
    enum class State { Usable, NoObject, OutOfReach };
    State state;
    Json object = Json::object();
};

/// What is valid but does not survive here, numbers beyond all doubles, is out of reach: better no
/// hooks than a setting lost.
Settings parse(const QByteArray &text)
{
    int depth = 0;
    const auto measure = [&depth](int level, Json::parse_event_t, Json &) {
        depth = std::max(depth, level);
        return true;
    };
    try {
        auto value = Json::parse(text.begin(), text.end(), measure);
        if (depth > deepest)
            return {Settings::State::OutOfReach};
        if (!value.is_object())
            return {Settings::State::NoObject};
        return {Settings::State::Usable, std::move(value)};
    } catch (const Json::parse_error &) {
        return {Settings::State::NoObject};
    } catch (const Json::exception &) {
        return {Settings::State::OutOfReach};
    }
}

bool runsHook(const Json &handler)
{
    if (!handler.is_object())
        return false;
    const auto command = handler.find("command");
    return command != handler.end() && command->is_string() &&
           command->get_ref<const std::string &>().find(ourMark) != std::string::npos;
}

const Json *handlersOf(const Json &group)
{
    const auto hooks = group.find("hooks");
    return hooks != group.end() && hooks->is_array() ? &*hooks : nullptr;
}

bool isOurs(const Json &group)
{
    const auto *const handlers = handlersOf(group);
    return handlers && std::any_of(handlers->begin(), handlers->end(), runsHook);
}

/// Ours, but with something else in it.
bool isShared(const Json &group)
{
    const auto *const handlers = handlersOf(group);
    return handlers && !std::all_of(handlers->begin(), handlers->end(), runsHook);
}

bool isListOfObjects(const Json &value)
{
    return value.is_array() && std::all_of(value.begin(), value.end(),
                                           [](const Json &element) { return element.is_object(); });
}

/// Takes ours out of one event's groups. True if something foreign went with it.
bool removeOurs(Json &groups)
{
    if (!isListOfObjects(groups)) {
        const bool hadContent = !groups.is_null();
        groups = Json::array();
        return hadContent;
    }
    bool losesForeign = false;
    Json others = Json::array();
    for (auto &group : groups) {
        if (!isOurs(group))
            others.push_back(std::move(group));
        else if (isShared(group))
            losesForeign = true;
    }
    groups = std::move(others);
    return losesForeign;
}

/// `command` null: only removes.
HookSettingsEdit rewrite(Json object, const QString *command)
{
    HookSettingsEdit edit;
    Json &hooks = object["hooks"];
    if (!hooks.is_object()) {
        edit.losesForeign = !hooks.is_null();
        hooks = Json::object();
    }
    for (const char *const event : events) {
        Json &groups = hooks[event];
        if (removeOurs(groups))
            edit.losesForeign = true;
        if (command)
            groups.push_back({{"hooks", Json::array({{{"type", "command"},
                                                      {"command", command->toStdString()}}})}});
        if (groups.empty())
            hooks.erase(event);
    }
    if (hooks.empty())
        object.erase("hooks");
    constexpr int indent = 2;
    edit.text = QByteArray::fromStdString(object.dump(indent)) + '\n';
    return edit;
}

bool mentionsHook(const Json &value)
{
    if (value.is_string())
        return value.get_ref<const std::string &>().find(ourMark) != std::string::npos;
    return value.is_structured() && std::any_of(value.begin(), value.end(), mentionsHook);
}

} // namespace

std::optional<HookSettingsEdit> withHooks(const QByteArray &settings, const QString &command)
{
    auto parsed = parse(settings);
    if (parsed.state == Settings::State::OutOfReach)
        return std::nullopt;
    auto edit = rewrite(std::move(parsed.object), &command);
    if (parsed.state == Settings::State::NoObject)
        edit.losesForeign = !settings.trimmed().isEmpty();
    return edit;
}

std::optional<HookSettingsEdit> withoutHooks(const QByteArray &settings)
{
    auto parsed = parse(settings);
    if (parsed.state != Settings::State::Usable)
        return std::nullopt;
    return rewrite(std::move(parsed.object), nullptr);
}

bool refersToHook(const QByteArray &settings)
{
    const auto parsed = parse(settings);
    if (parsed.state != Settings::State::Usable)
        return settings.contains(ourMark);
    const auto hooks = parsed.object.find("hooks");
    return hooks != parsed.object.end() && mentionsHook(*hooks);
}

} // namespace quillmere
