#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>
#include <utility>

namespace quillmere {

/// Whether an action was taken, and if not, perhaps what is wrong with it.
struct ActionOutcome {
    ActionOutcome(bool accepted)
        : isAccepted(accepted)
    {
    }
    static ActionOutcome refused(QString reason)
    {
        ActionOutcome outcome(false);
        outcome.reason = std::move(reason);
        return outcome;
    }
    operator bool() const { return isAccepted; }

    bool isAccepted;
    QString reason; ///< for the caller; empty: no such action, or not with this parameter
};

/// What other programs may ask of the running one. No request runs a command or opens a file by
/// itself; the handlers decide. Requests that come before the handlers are set wait for them.
struct RemoteRequests {
    std::function<void()> activate;
    std::function<void(const QStringList &uris)> open;
    std::function<ActionOutcome(const QString &action, const QVariantList &parameter)>
        activateAction;
};

/// The receiving end of requests from other programs. Main thread only.
class RemoteControl
{
public:
    virtual ~RemoteControl() = default;
    virtual void setHandlers(RemoteRequests handlers) = 0;
};

} // namespace quillmere
