#pragma once

#include "platform/GlobalEvents.h"
#include "platform/linux/window/XcbConnection.h"

#include <vector>

namespace quillmere {

/// Pointer events anywhere on an X desktop, by raw events of XInput 2, which no grab of another
/// program holds back. They are selected only while somebody listens.
class X11GlobalEvents : public GlobalEvents
{
public:
    explicit X11GlobalEvents(XcbConnection &connection);

    Task onLeftMouseDown(std::function<void(QPointF position)> listener) override;

private:
    void selectRawEvents(bool on);
    void queryButtonMap();
    void handle(const xcb_generic_event_t &event);
    bool isLeft(unsigned int physicalButton) const;
    void locate(unsigned int physicalButton, xcb_window_t window, int depth);

    XcbConnection &connection_;
    std::uint8_t inputOpcode_ = 0;
    std::vector<std::uint8_t> buttonMap_;
    Listeners<QPointF> listeners_;
    Task events_;
    Owner owner_;
};

} // namespace quillmere
