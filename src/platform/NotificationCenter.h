#pragma once

#include "platform/Listeners.h"

#include <QHash>
#include <QString>
#include <QVariantMap>

namespace quillmere {

/// App-wide events by name. Observers are called in the order they registered, before post()
/// returns. Main thread only.
class NotificationCenter
{
public:
    using Observer = std::function<void(const QVariantMap &userInfo)>;

    /// Observes until the token is destroyed.
    Task observe(const QString &name, Observer observer);

    void post(const QString &name, const QVariantMap &userInfo = {});

private:
    QHash<QString, Listeners<const QVariantMap &>> observers_;
};

} // namespace quillmere
