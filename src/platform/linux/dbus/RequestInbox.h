#pragma once

#include "platform/Owner.h"
#include "platform/RemoteControl.h"
#include "platform/RunLoop.h"

#include <QDBusError>

#include <deque>
#include <functional>
#include <optional>

namespace quillmere {

/// Why a request was turned down: the error that answers it.
struct Refusal {
    QDBusError::ErrorType type;
    QString text;
};

/// Takes requests of other programs, checks their sizes and hands them to the handlers in the order
/// they came. Until there are handlers up to 64 wait, and are answered as accepted: a launcher that
/// has started the program must not wait for it to be ready. Main thread only.
class RequestInbox : public RemoteControl
{
public:
    explicit RequestInbox(RunLoop &runLoop);

    void setHandlers(RemoteRequests handlers) override;

    using Outcome = std::optional<Refusal>;
    Outcome activate();
    Outcome open(const QStringList &uris);
    Outcome activateAction(const QString &action, const QVariantList &parameter);

private:
    using Request = std::function<Outcome(const RemoteRequests &)>;

    Outcome take(Request request);
    void handleWaiting();

    RunLoop &runLoop_;
    std::optional<RemoteRequests> handlers_;
    std::deque<Request> waiting_;
    Owner owner_;
};

} // namespace quillmere
