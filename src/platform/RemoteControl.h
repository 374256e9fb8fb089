#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>

namespace quillmere {

/// What other programs may ask of the running one. No request runs a command or opens a file by
/// itself; the handlers decide. Requests that come before the handlers are set wait for them.
struct RemoteRequests {
    std::function<void()> activate;
    std::function<void(const QStringList &uris)> open;
    /// False: no such action, or not with this parameter.
    std::function<bool(const QString &action, const QVariantList &parameter)> activateAction;
};

/// The receiving end of requests from other programs. Main thread only.
class RemoteControl
{
public:
    virtual ~RemoteControl() = default;
    virtual void setHandlers(RemoteRequests handlers) = 0;
};

} // namespace quillmere
