#include "platform/linux/focus/GSettingsFocus.h"

#include <QDebug>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace quillmere {

namespace {

constexpr QLatin1StringView program("gsettings");

constexpr FocusSetting settings[] = {
    {.teller = QLatin1StringView("GNOME"),
     .desktop = QLatin1StringView("GNOME"),
     .schema = QLatin1StringView("org.gnome.desktop.notifications"),
     .key = QLatin1StringView("show-banners"),
     .path = QLatin1StringView("/org/gnome/desktop/notifications/show-banners"),
     .valueWhenOn = false},
    {.teller = QLatin1StringView("Cinnamon"),
     .desktop = QLatin1StringView("X-Cinnamon"),
     .schema = QLatin1StringView("org.cinnamon.desktop.notifications"),
     .key = QLatin1StringView("display-notifications"),
     .path = QLatin1StringView("/org/cinnamon/desktop/notifications/display-notifications"),
     .valueWhenOn = false},
    {.teller = QLatin1StringView("MATE"),
     .desktop = QLatin1StringView("MATE"),
     .schema = QLatin1StringView("org.mate.NotificationDaemon"),
     .key = QLatin1StringView("do-not-disturb"),
     .path = QLatin1StringView("/org/mate/notification-daemon/do-not-disturb"),
     .valueWhenOn = true},
};

ProcessScriptRunner::Places programPlaces()
{
    const QString found = QStandardPaths::findExecutable(program);
    return {.replacements = {}, .builtIn = found.isEmpty() ? QString() : QFileInfo(found).path()};
}

/// A change of a folder, as when it is reset, is one of everything in it.
bool touches(const QString &changed, QLatin1StringView path)
{
    return changed == path || (changed.endsWith(u'/') && path.startsWith(changed));
}

} // namespace

const FocusSetting *focusSettingOf(const QStringList &desktops)
{
    for (const QString &desktop : desktops) {
        for (const FocusSetting &setting : settings) {
            if (desktop.compare(setting.desktop, Qt::CaseInsensitive) == 0)
                return &setting;
        }
    }
    return nullptr;
}

GSettingsFocus::GSettingsFocus(RunLoop &runLoop, const QDBusConnection &sessionBus,
                               const FocusSetting &setting)
    : setting_(setting)
    , programs_(runLoop, programPlaces())
{
    // From whomever: dconf's service comes only with the first change, and whoever else signals
    // gets no more than a look at the setting.
    QDBusConnection bus = sessionBus;
    bus.connect({}, QStringLiteral("/ca/desrt/dconf/Writer/user"),
                QStringLiteral("ca.desrt.dconf.Writer"), QStringLiteral("Notify"), this,
                SLOT(changed(QString, QStringList, QString)));
    read();
}

void GSettingsFocus::changed(const QString &prefix, const QStringList &changes, const QString &)
{
    const bool concernsUs = std::ranges::any_of(
        changes, [&](const QString &change) { return touches(prefix + change, setting_.path); });
    if (concernsUs)
        read();
}

void GSettingsFocus::read()
{
    if (run_) {
        isStale_ = true;
        return;
    }
    run_ = programs_.run(program, {QStringLiteral("get"), setting_.schema, setting_.key},
                         [this](const ScriptAnswer &answer) { take(answer); });
}

void GSettingsFocus::take(const ScriptAnswer &answer)
{
    run_.cancel();
    if (std::exchange(isStale_, false))
        return read();
    if (!answer.hasSucceeded) {
        complain(answer.hasRun ? answer.errors : QByteArray("there is no gsettings"));
        return tell(std::nullopt);
    }
    const bool value = answer.output == "true";
    if (!value && answer.output != "false")
        return complain(answer.output + " is neither true nor false");
    hasComplained_ = false;
    tell(FocusReport{setting_.teller, value == setting_.valueWhenOn});
}

void GSettingsFocus::complain(const QByteArray &why)
{
    if (!std::exchange(hasComplained_, true))
        qWarning("[Notifications] Do Not Disturb of %s is not followed: %s", setting_.teller.data(),
                 why.constData());
}

} // namespace quillmere
