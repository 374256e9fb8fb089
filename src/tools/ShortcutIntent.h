#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <tl/expected.hpp>

#include <array>
#include <optional>
#include <span>

namespace quillmere {

/// One of the intents, as it is published. Its texts are those of the source language.
struct ShortcutIntent {
    QLatin1StringView name;
    QLatin1StringView action; ///< its name for the desktop's actions
    const char *title;
    const char *shortTitle;              ///< of its ready-made shortcut; null: it has none
    std::array<const char *, 2> phrases; ///< of that shortcut; %1 is the program's name
    QLatin1StringView symbol;
    bool takesMinutes = false;
};

/// All six.
std::span<const ShortcutIntent> shortcutIntents();

/// By its name or its action; null: there is none.
const ShortcutIntent *findIntent(QStringView nameOrAction);

QString intentTitle(const ShortcutIntent &intent);
QString intentShortTitle(const ShortcutIntent &intent); ///< the title if there is no shortcut
QStringList intentPhrases(const ShortcutIntent &intent);

/// "Start a 10-minute countdown".
QString parameterSummary(int minutes);

/// The parameter `minutes` of StartCountdownTimerIntent: its title and what it means.
QString minutesTitle();
QString minutesDescription();
inline constexpr int fewestMinutes = 1;
inline constexpr int mostMinutes = 1440;

inline bool isMinutes(qint64 minutes)
{
    return minutes >= fewestMinutes && minutes <= mostMinutes;
}

/// A text of someone else's, as much of it as an answer repeats.
QString quotable(const QString &text);

/// The number of minutes among `parameters`; absent inside when they do not tell. An error says
/// what is wrong with them, for the person who sent them.
tl::expected<std::optional<int>, QString> minutesOf(const ShortcutIntent &intent,
                                                    const QVariantMap &parameters);

} // namespace quillmere
