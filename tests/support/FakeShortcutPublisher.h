#pragma once

#include "platform/Shortcuts.h"

namespace quillmere {

/// The desktop, asking for what was published.
struct FakeShortcutPublisher : ShortcutPublisher {
    void publish(ShortcutRequests what) override { requests = std::move(what); }
    ShortcutRequests requests;
};

} // namespace quillmere
