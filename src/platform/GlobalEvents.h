#pragma once

#include "platform/Task.h"

#include <QPointF>

#include <functional>

namespace quillmere {

/// Pointer events anywhere on the desktop outside our own windows. Main thread only.
class GlobalEvents
{
public:
    virtual ~GlobalEvents() = default;

    /// Calls back on every press of the left button, with its place in logical, global units.
    virtual Task onLeftMouseDown(std::function<void(QPointF position)> listener) = 0;
};

} // namespace quillmere
