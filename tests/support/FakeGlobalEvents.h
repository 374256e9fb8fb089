#pragma once

#include "platform/GlobalEvents.h"
#include "platform/Listeners.h"

namespace quillmere {

/// Pointer events made by the test.
class FakeGlobalEvents : public GlobalEvents
{
public:
    Task onLeftMouseDown(std::function<void(QPointF position)> listener) override
    {
        return listeners_.add(std::move(listener));
    }
    void press(QPointF position) const { listeners_.notify(position); }
    bool isWatched() const { return !listeners_.isEmpty(); }

private:
    Listeners<QPointF> listeners_;
};

} // namespace quillmere
