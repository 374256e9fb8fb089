#pragma once

#include "platform/GlobalEvents.h"
#include "platform/linux/window/XcbConnection.h"

#include <bitset>
#include <vector>

namespace quillmere {

/// Pointer events anywhere on an X desktop, by raw events of XInput 2, which no grab of another
/// program holds back. They are selected only while somebody listens, and motion only while the
/// left button is held outside our windows: a pointer that just moves about wakes nobody.
class X11GlobalEvents : public GlobalEvents
{
public:
    explicit X11GlobalEvents(XcbConnection &connection);

    Capabilities capabilities() const override;
    Task onLeftMouseDown(Listener listener) override;
    Task onLeftMouseDragged(Listener listener) override;
    Task onLeftMouseUp(Listener listener) override;

private:
    using Button = std::uint8_t;
    using Positions = Listeners<QPointF>;

    Task listen(Positions &listeners, Listener listener);
    bool wantsPresses() const;
    void selectRawEvents();
    void queryButtonMap();
    void handle(const xcb_generic_event_t &event);
    void pressed(unsigned int button);
    void released(unsigned int button);
    void moved();
    bool isLeft(unsigned int physicalButton) const;
    void locate(unsigned int physicalButton, xcb_window_t window, int depth);
    void leftPressed(unsigned int physicalButton, QPointF position);
    void notifyOfPointer(const Positions &listeners);

    XcbConnection &connection_;
    Button inputOpcode_ = 0;
    std::vector<Button> buttonMap_;
    std::uint32_t selectedEvents_ = 0;
    std::bitset<256> heldButtons_; // physical ones, wherever they were pressed
    unsigned int dragButton_ = 0;  // the held one whose press was reported; 0 = none
    QTimer motionPause_;           // runs between two looks at the motion
    Positions downListeners_;
    Positions dragListeners_;
    Positions upListeners_;
    Task events_;
    Owner owner_;
};

} // namespace quillmere
