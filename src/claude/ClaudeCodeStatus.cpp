#include "claude/ClaudeCodeStatus.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr std::array texts{QLatin1StringView("idle"), QLatin1StringView("working"),
                           QLatin1StringView("waiting"), QLatin1StringView("compacting")};
static_assert(texts.size() == static_cast<std::size_t>(ClaudeCodeStatus::Compacting) + 1);

} // namespace

QLatin1StringView claudeCodeStatusText(ClaudeCodeStatus status)
{
    return texts.at(static_cast<std::size_t>(status));
}

std::optional<ClaudeCodeStatus> claudeCodeStatusFromText(QStringView text)
{
    const auto found = std::find(texts.begin(), texts.end(), text);
    if (found == texts.end())
        return std::nullopt;
    return static_cast<ClaudeCodeStatus>(found - texts.begin());
}

} // namespace quillmere
