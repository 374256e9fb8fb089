#pragma once

#include "island/HUDContent.h"
#include "platform/Shortcuts.h"

#include <QVariantList>

#include <functional>

namespace quillmere {

class CountdownTimerManager;
class NotificationCenter;
class PomodoroManager;
struct ShortcutIntent;

/// Performs the intents and offers them to the desktop. Main thread only.
class QuillmereShortcuts
{
public:
    /// All must outlive this object.
    QuillmereShortcuts(PomodoroManager &pomodoro, CountdownTimerManager &countdown,
                       NotificationCenter &notificationCenter, ShortcutPublisher &publisher);
    /// Takes the offer back.
    ~QuillmereShortcuts();
    QuillmereShortcuts(const QuillmereShortcuts &) = delete;
    QuillmereShortcuts &operator=(const QuillmereShortcuts &) = delete;

    /// Shows a dialog to the user where whoever asked cannot.
    std::function<void(const HUDContent &dialog)> onDialog;

    /// Someone looks for the program itself.
    std::function<void()> onShow;

    /// The dialog, or what is wrong. StartCountdownTimerIntent without `minutes` takes the preset.
    tl::expected<QString, QString> perform(const QString &intent, const QVariantMap &parameters);

    /// The intent of a desktop action, with the minutes as its only parameter; the dialog goes to
    /// onDialog. An error tells what is wrong, also when no intent has that action.
    tl::expected<void, QString> activateAction(const QString &action,
                                               const QVariantList &parameter);

    /// What a search found, by its id; a dialog goes to onDialog, an error to the log.
    void run(const QString &id);

private:
    tl::expected<QString, QString> perform(const ShortcutIntent &intent,
                                           const QVariantMap &parameters);
    QString startPomodoro();
    QString stopPomodoro();
    QString skipPomodoro();
    QString startCountdown(int minutes);
    QString stopCountdown();
    QString toggleIsland();
    void publish();
    QList<ShortcutMatch> describe(const QStringList &ids) const;

    PomodoroManager &pomodoro_;
    CountdownTimerManager &countdown_;
    NotificationCenter &notificationCenter_;
    ShortcutPublisher &publisher_;
};

} // namespace quillmere
