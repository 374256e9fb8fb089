#include "tools/PomodoroState.h"

#include <array>

namespace quillmere {

QLatin1StringView pomodoroStateName(PomodoroState state)
{
    static constexpr std::array names{QLatin1StringView("idle"), QLatin1StringView("working"),
                                      QLatin1StringView("shortBreak"),
                                      QLatin1StringView("longBreak")};
    static_assert(names.size() == static_cast<std::size_t>(PomodoroState::LongBreak) + 1);
    return names.at(static_cast<std::size_t>(state));
}

} // namespace quillmere
