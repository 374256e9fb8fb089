#pragma once

#include "platform/ParsedNotification.h"
#include "platform/Task.h"

#include <functional>

namespace quillmere {

/// Notifications of chat applications at the moment they are sent, seen in passing: whoever shows
/// notifications shows them as before. Looks only while somebody listens. Main thread only.
class NotificationFeed
{
public:
    using Listener = std::function<void(const ParsedNotification &)>;

    virtual ~NotificationFeed() = default;

    /// Each notification once, with a uuid of its own. The application is told by an `appID` that
    /// contains "slack" or "discord", whatever the sender calls itself.
    virtual Task onNotification(Listener listener) = 0;
};

} // namespace quillmere
