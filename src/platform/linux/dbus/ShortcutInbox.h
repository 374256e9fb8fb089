#pragma once

#include "platform/RunLoop.h"
#include "platform/Shortcuts.h"
#include "platform/linux/dbus/RequestInbox.h"

#include <QVariantList>

#include <deque>
#include <functional>
#include <optional>

class QDBusContext;

namespace quillmere {

/// Where the desktop's questions about our shortcuts come in, from whatever side. Until something
/// is published up to 64 wait: the program may just have been started by the first of them. Main
/// thread only.
class ShortcutInbox : public ShortcutPublisher
{
public:
    explicit ShortcutInbox(RunLoop &runLoop);

    void publish(ShortcutRequests requests) override;

    /// Runs `action` at once, or when something is published. False: too many wait.
    using Action = std::function<void(const ShortcutRequests &requests)>;
    bool take(Action action);

    /// The arguments of an answer on the bus, or why there is none.
    using Answer = tl::expected<QVariantList, Refusal>;

    /// Answers the bus call under way by what `work` returns, at once or when something is
    /// published.
    void answer(const QDBusContext &call,
                std::function<Answer(const ShortcutRequests &requests)> work);

private:
    void handleWaiting();

    RunLoop &runLoop_;
    std::optional<ShortcutRequests> requests_;
    std::deque<Action> waiting_;
    Owner owner_;
};

} // namespace quillmere
