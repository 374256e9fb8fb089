#pragma once

#include "platform/linux/focus/FocusSource.h"
#include "platform/linux/scripts/ProcessScriptRunner.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

namespace quillmere {

/// Where a desktop keeps Do Not Disturb among its GSettings.
struct FocusSetting {
    QLatin1StringView teller;
    QLatin1StringView desktop; ///< its name in XDG_CURRENT_DESKTOP
    QLatin1StringView schema;
    QLatin1StringView key;
    QLatin1StringView path; ///< of the key, where dconf keeps it
    bool valueWhenOn = false;
};

/// The setting of the session's desktop; null on a desktop without one. `desktops`: as in
/// XDG_CURRENT_DESKTOP, the nearest first.
const FocusSetting *focusSettingOf(const QStringList &desktops);

/// Do Not Disturb as a setting of GNOME or of one of its kin. dconf announces changes on the bus;
/// the value, which may also be a default of the system, is read by a short run of gsettings then.
/// Main thread only.
class GSettingsFocus : public QObject, public FocusSource
{
    Q_OBJECT

public:
    /// `setting` outlives this object. Reads at once.
    GSettingsFocus(RunLoop &runLoop, const QDBusConnection &sessionBus,
                   const FocusSetting &setting);

private:
    void read();
    void take(const ScriptAnswer &answer);
    void complain(const QByteArray &why);
    Q_SLOT void changed(const QString &prefix, const QStringList &changes, const QString &tag);

    const FocusSetting &setting_;
    ProcessScriptRunner programs_;
    Task run_;
    bool isStale_ = false; ///< something has changed since the run began
    bool hasComplained_ = false;
};

} // namespace quillmere
