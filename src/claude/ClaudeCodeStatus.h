#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace quillmere {

/// What the coding assistant is doing.
enum class ClaudeCodeStatus {
    Idle,      ///< nothing runs, or the session ended or fell silent
    Working,   ///< it processes a prompt or runs tools
    Waiting,   ///< it asks the user for a permission
    Compacting ///< it compacts its context
};

/// "idle", "working", "waiting", "compacting".
QLatin1StringView claudeCodeStatusText(ClaudeCodeStatus status);

/// Absent for any other text.
std::optional<ClaudeCodeStatus> claudeCodeStatusFromText(QStringView text);

} // namespace quillmere
