#pragma once

#include "claude/ClaudeCodeStatus.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace quillmere {

struct HookEvent;

/// The latest known session of the assistant.
struct ClaudeCodeSession {
    QString sessionId{};
    QString projectName{}; ///< last component of its working directory
    ClaudeCodeStatus status = ClaudeCodeStatus::Idle;
    std::optional<QString> currentTool{}; ///< what the tool last in use does, for people
    std::optional<QString> lastPrompt{};
    QDateTime lastUpdate{};

    bool operator==(const ClaudeCodeSession &) const = default;
};

/// What an event says about the assistant. The hook's word counts only for events unknown here.
ClaudeCodeStatus statusAfter(const HookEvent &event);

/// What a tool does, for people; a tool unknown here goes by its own name.
QString toolLabel(const QString &tool);

/// Absent without a tool.
std::optional<QString> toolLabel(const HookEvent &event);

/// "demo" for "/home/x/demo/".
QString lastPathComponent(QStringView path);

/// The session's record after an event. Tool and prompt stay until an event brings new ones, also
/// from one session into the next.
ClaudeCodeSession sessionAfter(const HookEvent &event,
                               const std::optional<ClaudeCodeSession> &previous,
                               const QDateTime &now);

} // namespace quillmere
