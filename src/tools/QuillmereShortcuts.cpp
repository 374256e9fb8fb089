#include "tools/QuillmereShortcuts.h"

#include "app/AppEvents.h"
#include "platform/NotificationCenter.h"
#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/ShortcutIntent.h"
#include "tools/ShortcutSearch.h"
#include "tools/TimerTexts.h"

#include <QCoreApplication>
#include <QDebug>

#include <algorithm>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(QuillmereShortcuts)
};

constexpr QLatin1StringView islandAction{"toggle-island"};

QString unitOf(qint64 minutes)
{
    return minutes == 1 ? Words::tr("minute") : Words::tr("minutes");
}

Shortcut toShortcut(const ShortcutIntent &intent)
{
    return {.name = intent.name,
            .action = intent.action,
            .title = intentTitle(intent),
            .symbol = intent.symbol};
}

QList<Shortcut> allShortcuts()
{
    QList<Shortcut> all;
    for (const ShortcutIntent &intent : shortcutIntents())
        all.append(toShortcut(intent));
    return all;
}

HUDContent dialogHUD(const ShortcutIntent &intent, const QString &dialog)
{
    return {
        .title = dialog, .icon = QString(intent.symbol), .type = HUDContent::HUDType::Notification};
}

} // namespace

QuillmereShortcuts::QuillmereShortcuts(PomodoroManager &pomodoro, CountdownTimerManager &countdown,
                                       NotificationCenter &notificationCenter,
                                       ShortcutPublisher &publisher)
    : pomodoro_(pomodoro)
    , countdown_(countdown)
    , notificationCenter_(notificationCenter)
    , publisher_(publisher)
{
    publish();
}

QuillmereShortcuts::~QuillmereShortcuts()
{
    publisher_.publish({});
}

void QuillmereShortcuts::publish()
{
    publisher_.publish(
        {.list = &allShortcuts,
         .perform = [this](const QString &intent,
                           const QVariantMap &parameters) { return perform(intent, parameters); },
         .search =
             [this](const QString &query) {
                 return searchShortcuts(query, countdown_.presetMinutes());
             },
         .describe = [this](const QStringList &ids) { return describe(ids); },
         .run = [this](const QString &id) { run(id); },
         .show =
             [this] {
                 if (onShow)
                     onShow();
             }});
}

tl::expected<QString, QString> QuillmereShortcuts::perform(const QString &intent,
                                                           const QVariantMap &parameters)
{
    const ShortcutIntent *found = findIntent(intent);
    if (!found)
        return tl::unexpected(Words::tr("there is no intent \"%1\"").arg(quotable(intent)));
    return perform(*found, parameters);
}

tl::expected<void, QString> QuillmereShortcuts::activateAction(const QString &action,
                                                               const QVariantList &parameter)
{
    const ShortcutIntent *intent = findIntent(action);
    if (!intent)
        return tl::unexpected(Words::tr("there is no action \"%1\"").arg(quotable(action)));
    QVariantMap parameters;
    if (!parameter.isEmpty())
        parameters.insert(QStringLiteral("minutes"), parameter.first());
    const auto dialog = perform(*intent, parameters);
    if (!dialog)
        return tl::unexpected(dialog.error());
    if (onDialog && intent->action != islandAction) // the island's own movement is the answer
        onDialog(dialogHUD(*intent, *dialog));
    return {};
}

void QuillmereShortcuts::run(const QString &id)
{
    const auto match = parseMatchId(id);
    if (!match) {
        qWarning("[Shortcuts] There is no shortcut \"%s\"", qUtf8Printable(quotable(id)));
        return;
    }
    QVariantList parameter;
    if (match->minutes)
        parameter.append(*match->minutes);
    activateAction(match->intent.action, parameter);
}

tl::expected<QString, QString> QuillmereShortcuts::perform(const ShortcutIntent &intent,
                                                           const QVariantMap &parameters)
{
    const auto minutes = minutesOf(intent, parameters);
    if (!minutes)
        return tl::unexpected(minutes.error());
    if (intent.takesMinutes)
        return startCountdown(
            minutes->value_or(std::clamp(countdown_.presetMinutes(), fewestMinutes, mostMinutes)));
    static const std::pair<QLatin1StringView, QString (QuillmereShortcuts::*)()> actions[] = {
        {QLatin1StringView("start-pomodoro"), &QuillmereShortcuts::startPomodoro},
        {QLatin1StringView("stop-pomodoro"), &QuillmereShortcuts::stopPomodoro},
        {QLatin1StringView("skip-pomodoro"), &QuillmereShortcuts::skipPomodoro},
        {QLatin1StringView("stop-countdown"), &QuillmereShortcuts::stopCountdown},
        {islandAction, &QuillmereShortcuts::toggleIsland},
    };
    for (const auto &[action, function] : actions) {
        if (action == intent.action)
            return (this->*function)();
    }
    return tl::unexpected(Words::tr("there is no intent \"%1\"").arg(intent.name));
}

QString QuillmereShortcuts::startPomodoro()
{
    pomodoro_.startWork();
    const qint64 minutes = wholeSeconds(pomodoro_.workDuration) / 60;
    return Words::tr("Pomodoro started — %1 %2 of focus.").arg(minutes).arg(unitOf(minutes));
}

QString QuillmereShortcuts::stopPomodoro()
{
    if (pomodoro_.state() == PomodoroState::Idle)
        return Words::tr("No Pomodoro session is running.");
    pomodoro_.stop();
    return Words::tr("Pomodoro stopped.");
}

QString QuillmereShortcuts::skipPomodoro()
{
    const PomodoroState skipped = pomodoro_.state();
    pomodoro_.skip();
    if (skipped == PomodoroState::Idle)
        return Words::tr("No Pomodoro session is running.");
    return isBreak(skipped) ? Words::tr("Break skipped.") : Words::tr("Focus session skipped.");
}

QString QuillmereShortcuts::startCountdown(int minutes)
{
    countdown_.setPreset(minutes);
    countdown_.start();
    return Words::tr("Countdown started — %1 %2 to go.").arg(minutes).arg(unitOf(minutes));
}

QString QuillmereShortcuts::stopCountdown()
{
    if (!countdown_.isRunning())
        return Words::tr("No timer was running.");
    countdown_.reset();
    return Words::tr("Timer cancelled.");
}

QString QuillmereShortcuts::toggleIsland()
{
    notificationCenter_.post(events::islandTapped, {{events::byKeyboard, true}});
    return Words::tr("Toggled the island.");
}

QList<ShortcutMatch> QuillmereShortcuts::describe(const QStringList &ids) const
{
    QList<ShortcutMatch> matches;
    for (const QString &id : ids) {
        if (const auto match = describeMatch(id, countdown_.presetMinutes()))
            matches.append(*match);
    }
    return matches;
}

} // namespace quillmere
