#include "tools/ShortcutIntent.h"

#include "platform/Symbols.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ShortcutIntent)
};

constexpr qsizetype longestQuote = 64;
constexpr QLatin1StringView minutesKey{"minutes"};

constexpr std::array intents{
    ShortcutIntent{
        .name = QLatin1StringView("StartPomodoroIntent"),
        .action = QLatin1StringView("start-pomodoro"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Start Pomodoro"),
        .shortTitle = QT_TRANSLATE_NOOP("ShortcutIntent", "Start Pomodoro"),
        .phrases = {QT_TRANSLATE_NOOP("ShortcutIntent", "Start a Pomodoro in %1"),
                    QT_TRANSLATE_NOOP("ShortcutIntent", "Start a focus session in %1")},
        .symbol = symbols::timer,
    },
    ShortcutIntent{
        .name = QLatin1StringView("StopPomodoroIntent"),
        .action = QLatin1StringView("stop-pomodoro"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Stop Pomodoro"),
        .shortTitle = QT_TRANSLATE_NOOP("ShortcutIntent", "Stop Pomodoro"),
        .phrases = {QT_TRANSLATE_NOOP("ShortcutIntent", "Stop the Pomodoro in %1"),
                    QT_TRANSLATE_NOOP("ShortcutIntent", "End the %1 focus session")},
        .symbol = symbols::stopCircle,
    },
    ShortcutIntent{
        .name = QLatin1StringView("SkipPomodoroIntent"),
        .action = QLatin1StringView("skip-pomodoro"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Skip Pomodoro Phase"),
        .shortTitle = nullptr,
        .phrases = {},
        .symbol = symbols::forwardFill,
    },
    ShortcutIntent{
        .name = QLatin1StringView("StartCountdownTimerIntent"),
        .action = QLatin1StringView("start-countdown"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Start Countdown Timer"),
        .shortTitle = QT_TRANSLATE_NOOP("ShortcutIntent", "Start Timer"),
        .phrases = {QT_TRANSLATE_NOOP("ShortcutIntent", "Start a timer in %1"),
                    QT_TRANSLATE_NOOP("ShortcutIntent", "Start a countdown in %1")},
        .symbol = symbols::hourglass,
        .takesMinutes = true,
    },
    ShortcutIntent{
        .name = QLatin1StringView("StopCountdownTimerIntent"),
        .action = QLatin1StringView("stop-countdown"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Stop Countdown Timer"),
        .shortTitle = QT_TRANSLATE_NOOP("ShortcutIntent", "Stop Timer"),
        .phrases = {QT_TRANSLATE_NOOP("ShortcutIntent", "Stop the timer in %1"),
                    QT_TRANSLATE_NOOP("ShortcutIntent", "Cancel the %1 timer")},
        .symbol = symbols::xmarkCircle,
    },
    ShortcutIntent{
        .name = QLatin1StringView("ToggleIslandIntent"),
        .action = QLatin1StringView("toggle-island"),
        .title = QT_TRANSLATE_NOOP("ShortcutIntent", "Toggle Island"),
        .shortTitle = QT_TRANSLATE_NOOP("ShortcutIntent", "Toggle Island"),
        .phrases = {QT_TRANSLATE_NOOP("ShortcutIntent", "Toggle the island in %1"),
                    QT_TRANSLATE_NOOP("ShortcutIntent", "Show the %1 island")},
        .symbol = symbols::capsule,
    },
};

/// Whatever kind of integer a caller's language sends.
std::optional<qint64> wholeNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::ULongLong:
        return static_cast<qint64>(
            std::min(value.toULongLong(), qulonglong{std::numeric_limits<qint64>::max()}));
    default:
        return std::nullopt;
    }
}

} // namespace

std::span<const ShortcutIntent> shortcutIntents()
{
    return intents;
}

const ShortcutIntent *findIntent(QStringView nameOrAction)
{
    const auto found = std::ranges::find_if(intents, [&](const ShortcutIntent &intent) {
        return nameOrAction == intent.name || nameOrAction == intent.action;
    });
    return found == intents.end() ? nullptr : &*found;
}

QString intentTitle(const ShortcutIntent &intent)
{
    return Words::tr(intent.title);
}

QString intentShortTitle(const ShortcutIntent &intent)
{
    return Words::tr(intent.shortTitle ? intent.shortTitle : intent.title);
}

QStringList intentPhrases(const ShortcutIntent &intent)
{
    QStringList phrases;
    for (const char *phrase : intent.phrases) {
        if (phrase)
            phrases.append(Words::tr(phrase).arg(QStringLiteral("Quillmere")));
    }
    return phrases;
}

QString parameterSummary(int minutes)
{
    return Words::tr("Start a %1-minute countdown").arg(minutes);
}

QString minutesTitle()
{
    return Words::tr("Minutes");
}

QString minutesDescription()
{
    return Words::tr("Length of the countdown in minutes.");
}

QString quotable(const QString &text)
{
    return text.left(longestQuote);
}

tl::expected<std::optional<int>, QString> minutesOf(const ShortcutIntent &intent,
                                                    const QVariantMap &parameters)
{
    for (const QString &key : parameters.keys()) {
        if (!intent.takesMinutes || key != minutesKey)
            return tl::unexpected(
                Words::tr("%1 has no parameter \"%2\"").arg(intent.name, quotable(key)));
    }
    const auto given = parameters.constFind(minutesKey);
    if (given == parameters.cend())
        return std::nullopt;
    const auto minutes = wholeNumber(*given);
    if (!minutes || !isMinutes(*minutes))
        return tl::unexpected(Words::tr("minutes must be a whole number from %1 to %2")
                                  .arg(fewestMinutes)
                                  .arg(mostMinutes));
    return static_cast<int>(*minutes);
}

} // namespace quillmere
