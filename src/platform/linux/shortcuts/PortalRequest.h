#pragma once

#include "platform/linux/dbus/BusCalls.h"

#include <QObject>
#include <QVariantMap>

#include <functional>

namespace quillmere {

/// A request to the desktop's portal: the call answers at once, the outcome comes as a signal,
/// perhaps only when the user has dealt with a dialog. Destroying it stops listening. Main thread
/// only.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    /// The result of a request that the portal has carried out.
    using Result = tl::expected<QVariantMap, QString>;

    /// Sends `call` to the portal whose unique name it bears, with `options` as its last argument.
    /// `done` is called once, never from within, and must leave the request alive.
    PortalRequest(const QDBusConnection &bus, QDBusMessage call, QVariantMap options,
                  std::function<void(const Result &)> done);

private:
    Q_SLOT void responded(const QDBusMessage &message);
    void finish(const Result &result);

    std::function<void(const Result &)> done_;
    BusCalls calls_;
};

} // namespace quillmere
