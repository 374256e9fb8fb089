#pragma once

#include "platform/Task.h"

#include <QPointF>

#include <functional>

namespace quillmere {

/// What the left button does anywhere on the desktop outside our own windows: presses made there,
/// and how those go on. Positions are in logical, global units. Main thread only.
class GlobalEvents
{
public:
    using Listener = std::function<void(QPointF position)>;

    /// What this desktop shows a program of the pointer outside its windows; a listener for more is
    /// never called.
    struct Capabilities {
        bool drags = false; ///< dragging, the release after it, and what the DragPasteboard holds
    };

    virtual ~GlobalEvents() = default;

    virtual Capabilities capabilities() const { return {}; }

    /// Calls back on every press.
    virtual Task onLeftMouseDown(Listener listener) = 0;

    /// Calls back while the pointer moves with the button held, some 20 times a second at most.
    virtual Task onLeftMouseDragged(Listener listener) = 0;

    /// Calls back on the release, wherever that is.
    virtual Task onLeftMouseUp(Listener listener) = 0;
};

} // namespace quillmere
