#include "claude/HookEvent.h"

#include <nlohmann/json.hpp>

#include <cstdlib>

using namespace quillmere;

namespace {

/// What a plain reading of the whole message gives under `key`; null for anything but a text.
QString plainText(const nlohmann::json &message, const char *key)
{
    const auto found = message.find(key);
    if (found == message.end() || !found->is_string())
        return {};
    return QString::fromStdString(found->get<std::string>());
}

} // namespace

/// Whatever is accepted, a plain reading finds the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto event = decodeHookEvent(bytes);
    if (!event)
        return event.error().isEmpty() ? std::abort(), 1 : 0;
    const auto plain = nlohmann::json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!plain.is_object() || event->sessionId != plainText(plain, "session_id") ||
        event->cwd != plainText(plain, "cwd") || event->event != plainText(plain, "event") ||
        event->status != plainText(plain, "status") ||
        event->tool.value_or(QString()) != plainText(plain, "tool") ||
        event->userPrompt.value_or(QString()) != plainText(plain, "user_prompt") ||
        event->toolInput.has_value() !=
            (plain.contains("tool_input") && plain["tool_input"].is_object()))
        std::abort();
    return 0;
}
