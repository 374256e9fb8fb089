#include "claude/ClaudeCodeSession.h"

#include "claude/HookEvent.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

using enum ClaudeCodeStatus;

constexpr std::array<std::pair<QLatin1StringView, ClaudeCodeStatus>, 9> eventStatuses{{
    {QLatin1StringView("UserPromptSubmit"), Working},
    {QLatin1StringView("PreToolUse"), Working},
    {QLatin1StringView("PostToolUse"), Working},
    {QLatin1StringView("PreCompact"), Compacting},
    {QLatin1StringView("PermissionRequest"), Waiting},
    {QLatin1StringView("Stop"), Idle},
    {QLatin1StringView("SubagentStop"), Idle},
    {QLatin1StringView("SessionEnd"), Idle},
    {QLatin1StringView("SessionStart"), Working}, // a start is activity, whatever the hook calls it
}};

constexpr std::array<std::pair<QLatin1StringView, QLatin1StringView>, 10> toolLabels{{
    {QLatin1StringView("Edit"), QLatin1StringView("Editing file")},
    {QLatin1StringView("Write"), QLatin1StringView("Writing file")},
    {QLatin1StringView("Read"), QLatin1StringView("Reading file")},
    {QLatin1StringView("Bash"), QLatin1StringView("Running command")},
    {QLatin1StringView("Glob"), QLatin1StringView("Searching files")},
    {QLatin1StringView("Grep"), QLatin1StringView("Searching code")},
    {QLatin1StringView("Agent"), QLatin1StringView("Running sub-agent")},
    {QLatin1StringView("WebFetch"), QLatin1StringView("Fetching web page")},
    {QLatin1StringView("WebSearch"), QLatin1StringView("Searching web")},
    {QLatin1StringView("TodoWrite"), QLatin1StringView("Updating tasks")},
}};

template <class Table>
auto lookUp(const Table &table, const QString &name)
{
    return std::find_if(table.begin(), table.end(),
                        [&](const auto &entry) { return entry.first == name; });
}

} // namespace

ClaudeCodeStatus statusAfter(const HookEvent &event)
{
    const auto *const found = lookUp(eventStatuses, event.event);
    if (found != eventStatuses.end())
        return found->second;
    return event.status == QLatin1StringView("waiting_for_input") ? Idle : Working;
}

QString toolLabel(const QString &tool)
{
    const auto *const found = lookUp(toolLabels, tool);
    return found != toolLabels.end() ? QString(found->second) : tool;
}

std::optional<QString> toolLabel(const HookEvent &event)
{
    return event.tool ? std::optional(toolLabel(*event.tool)) : std::nullopt;
}

QString lastPathComponent(QStringView path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path == u"/" ? path.toString() : path.sliced(path.lastIndexOf(u'/') + 1).toString();
}

ClaudeCodeSession sessionAfter(const HookEvent &event,
                               const std::optional<ClaudeCodeSession> &previous,
                               const QDateTime &now)
{
    ClaudeCodeSession session{.sessionId = event.sessionId,
                              .projectName = lastPathComponent(event.cwd),
                              .status = statusAfter(event),
                              .currentTool = toolLabel(event),
                              .lastPrompt = event.userPrompt,
                              .lastUpdate = now};
    if (!session.currentTool && previous)
        session.currentTool = previous->currentTool;
    if (!session.lastPrompt && previous)
        session.lastPrompt = previous->lastPrompt;
    return session;
}

} // namespace quillmere
