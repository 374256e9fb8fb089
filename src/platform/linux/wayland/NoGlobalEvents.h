#pragma once

#include "platform/GlobalEvents.h"

namespace quillmere {

/// On Wayland no program hears of pointer events outside its own surfaces: listeners are never
/// called. Events on the island reach it through its window.
class NoGlobalEvents : public GlobalEvents
{
public:
    Task onLeftMouseDown(Listener) override { return {}; }
    Task onLeftMouseDragged(Listener) override { return {}; }
    Task onLeftMouseUp(Listener) override { return {}; }
};

} // namespace quillmere
