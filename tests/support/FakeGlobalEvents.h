#pragma once

#include "platform/GlobalEvents.h"
#include "platform/Listeners.h"

namespace quillmere {

/// Pointer events made by the test.
class FakeGlobalEvents : public GlobalEvents
{
public:
    Capabilities capabilities() const override { return able; }
    Task onLeftMouseDown(Listener listener) override { return downs_.add(std::move(listener)); }
    Task onLeftMouseDragged(Listener listener) override { return drags_.add(std::move(listener)); }
    Task onLeftMouseUp(Listener listener) override { return ups_.add(std::move(listener)); }

    void press(QPointF position) const { downs_.notify(position); }
    void drag(QPointF position = {}) const { drags_.notify(position); }
    void release(QPointF position = {}) const { ups_.notify(position); }
    bool isWatched() const { return !downs_.isEmpty(); }
    bool dragsAreWatched() const { return !drags_.isEmpty() || !ups_.isEmpty(); }

    Capabilities able{.drags = true};

private:
    Listeners<QPointF> downs_;
    Listeners<QPointF> drags_;
    Listeners<QPointF> ups_;
};

} // namespace quillmere
