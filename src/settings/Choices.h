#pragma once

#include <QLatin1StringView>
#include <QStringList>

#include <array>
#include <optional>

namespace quillmere {

/// The choices a setting can offer. Stored as the text of `choiceTexts`; the first case is number
/// 0.
enum class DisplaySelection { BuiltIn, Main, Active };
enum class IdleActivityType { None, Playing, Calendar, Duo };
enum class IslandAppearance { Glass, Classic };
enum class WaveformStyle { Monochrome, Colored, Gradient };
enum class MediaControlButton { Favorite, Shuffle, Repeat, Copy };
enum class LockScreenStyle { Glass, Clear, Frosted };
enum class HUDAppearanceStyle { White, Accent, Glow };
enum class AnimationSpeed { Smooth, Fast, Instant };
enum class SymbolSizeMode { Retain, Scale };
enum class SoundDisplayType { Speaker, Device };
enum class HUDColorTheme { White, Accent, Decibel };
enum class CalendarProvider { Apple, Google };

/// The pages of the settings window, in the order of its sidebar.
enum class SettingsPage {
    General,
    Battery,
    Connectivity,
    Email,
    Google,
    Discord,
    Slack,
    Focus,
    Display,
    Sound,
    NowPlaying,
    Weather,
    FileTray,
    LockScreen,
    Clipboard,
    Pomodoro,
    CameraMirror,
    NetworkSpeed,
    SystemMonitor,
    ClaudeCode,
    AppShortcuts,
    QuickNotes,
    Bookmarks,
    CountdownTimer,
    Reminders,
    About,
};

namespace detail {
template <class... Texts>
constexpr std::array<QLatin1StringView, sizeof...(Texts)> texts(const Texts &...literals)
{
    return {QLatin1StringView{literals, sizeof(literals) - 1}...};
}
} // namespace detail

/// The stored text of every case, in the order of the cases.
template <class E>
inline constexpr int choiceTexts = 0;
template <>
inline constexpr auto choiceTexts<DisplaySelection> = detail::texts("builtIn", "main", "active");
template <>
inline constexpr auto choiceTexts<IdleActivityType> = detail::texts("none", "playing", "calendar",
                                                                    "duo");
template <>
inline constexpr auto choiceTexts<IslandAppearance> = detail::texts("glass", "classic");
template <>
inline constexpr auto choiceTexts<WaveformStyle> = detail::texts("monochrome", "colored",
                                                                 "gradient");
template <>
inline constexpr auto choiceTexts<MediaControlButton> = detail::texts("favorite", "shuffle",
                                                                      "repeat", "copy");
template <>
inline constexpr auto choiceTexts<LockScreenStyle> = detail::texts("glass", "clear", "frosted");
template <>
inline constexpr auto choiceTexts<HUDAppearanceStyle> = detail::texts("white", "accent", "glow");
template <>
inline constexpr auto choiceTexts<AnimationSpeed> = detail::texts("smooth", "fast", "instant");
template <>
inline constexpr auto choiceTexts<SymbolSizeMode> = detail::texts("retain", "scale");
template <>
inline constexpr auto choiceTexts<SoundDisplayType> = detail::texts("speaker", "device");
template <>
inline constexpr auto choiceTexts<HUDColorTheme> = detail::texts("white", "accent", "decibel");
template <>
inline constexpr auto choiceTexts<CalendarProvider> = detail::texts("apple", "google");
template <>
inline constexpr auto choiceTexts<SettingsPage> = detail::texts(
    "general", "battery", "connectivity", "email", "google", "discord", "slack", "focus", "display",
    "sound", "nowPlaying", "weather", "fileTray", "lockScreen", "clipboard", "pomodoro",
    "cameraMirror", "networkSpeed", "systemMonitor", "claudeCode", "appShortcuts", "quickNotes",
    "bookmarks", "countdownTimer", "reminders", "about");

template <class E>
concept Choice = requires
{
    choiceTexts<E>.size();
};

/// All cases in order, for pickers.
template <Choice E>
constexpr auto allCases()
{
    std::array<E, choiceTexts<E>.size()> cases{};
    for (std::size_t i = 0; i < cases.size(); ++i)
        cases[i] = static_cast<E>(i);
    return cases;
}

template <Choice E>
constexpr QLatin1StringView toText(E value)
{
    return choiceTexts<E>[static_cast<std::size_t>(value)];
}

/// Absent for a text that is no case's; upper and lower case differ.
template <Choice E>
std::optional<E> fromText(QStringView text)
{
    for (const E value : allCases<E>()) {
        if (text == toText(value))
            return value;
    }
    return std::nullopt;
}

/// The texts of all cases in order.
template <Choice E>
QStringList allTexts()
{
    return QStringList(choiceTexts<E>.begin(), choiceTexts<E>.end());
}

} // namespace quillmere
