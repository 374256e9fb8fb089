#pragma once

#include "claude/AnyCodableValue.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <tl/expected.hpp>

#include <optional>

namespace quillmere {

/// One event of the assistant, as its hook reports it.
struct HookEvent {
    QString sessionId{};
    QString cwd{};
    QString event{};  ///< the assistant's name of it, such as "PreToolUse"
    QString status{}; ///< the hook's word for what it means
    std::optional<QString> tool{};
    std::optional<QHash<QString, AnyCodableValue>> toolInput{};
    std::optional<QString> toolUseId{};
    std::optional<QString> userPrompt{};
    std::optional<QString> permissionMode{};
    std::optional<bool> interactive{};

    bool operator==(const HookEvent &) const = default;
};

/// Anybody may write to the socket, so a text is cut at this length, which no hook reaches, before
/// it gets to the main thread, the log and the bus; and a tool's input keeps this many values.
inline constexpr qsizetype longestHookText = 65'536; // UTF-16 units
inline constexpr qsizetype mostToolInputs = 4'096;

/// Reads a message, in memory that does not grow with what it does not know. The error says what is
/// wrong with it. Any thread.
tl::expected<HookEvent, QString> decodeHookEvent(const QByteArray &message);

} // namespace quillmere
