#pragma once

#include "platform/linux/dbus/ShortcutInbox.h"
#include "platform/linux/dbus/ShortcutTypes.h"

#include <QDBusContext>
#include <QObject>

namespace quillmere {

/// The shortcuts for the search of the Plasma desktop, as org.kde.krunner1; called by the generated
/// adaptor. Main thread only.
class PlasmaRunner : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit PlasmaRunner(ShortcutInbox &inbox);

    QList<quillmere::TextTriple> Actions();
    QList<quillmere::RunnerMatch> Match(const QString &query);
    void Run(const QString &matchId, const QString &actionId);
    void SetActivationToken(const QString &token);
    void Teardown();

private:
    ShortcutInbox &inbox_;
};

} // namespace quillmere
