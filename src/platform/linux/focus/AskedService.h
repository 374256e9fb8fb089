#pragma once

#include "platform/linux/dbus/BusOwner.h"
#include "platform/linux/focus/FocusSource.h"

#include <QObject>
#include <QStringList>

#include <span>

namespace quillmere {

/// How a service is asked for Do Not Disturb, and what it says when that may have changed.
struct FocusQuestion {
    QLatin1StringView teller;
    QLatin1StringView service; ///< also the interface
    QLatin1StringView path;
    QLatin1StringView method;
    QStringList arguments;             ///< of the method, and of the signals that count
    QStringList signalNames;           ///< each means no more than that it is time to ask again
    QLatin1StringView errorOfNotSet{}; ///< this error says: never switched on
};

FocusQuestion swayNotificationCenter();
FocusQuestion xfceNotifications();

/// A service of the session bus that is asked for Do Not Disturb when it appears and whenever it
/// signals. It is never started from here. Main thread only.
class AskedService : public QObject, public FocusSource
{
    Q_OBJECT

public:
    AskedService(const QDBusConnection &sessionBus, FocusQuestion question);

private:
    void ask();
    void take(const BusReply &reply);
    Q_SLOT void signalled(const QDBusMessage &message);

    const FocusQuestion question_;
    BusCalls calls_;
    BusOwner service_;
};

} // namespace quillmere
