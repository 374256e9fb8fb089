#pragma once

#include "platform/Listeners.h"
#include "platform/NewMailSignal.h"

#include <QDBusConnection>
#include <QObject>

class QDBusMessage;

namespace quillmere {

/// Hears of new mail from Evolution, whose plugin for notifications tells the session bus.
/// Main thread only.
class EvolutionMail : public QObject, public NewMailSignal
{
    Q_OBJECT

public:
    explicit EvolutionMail(QDBusConnection sessionBus);

    Task onNewMail(Listener listener) override;

private:
    Q_SLOT void newMail(const QDBusMessage &message);

    Listeners<const QString &, const QString &> listeners_;
};

} // namespace quillmere
