#include "platform/linux/window/X11GlobalEvents.h"

#include "platform/linux/window/ScreenMapping.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/xinput.h>

#include <algorithm>
#include <chrono>

namespace quillmere {

namespace {

constexpr std::uint8_t leftButton = 1;
constexpr unsigned int firstWheelButton = 4;
constexpr unsigned int lastWheelButton = 7;

/// A window manager puts a client into a frame or two; deeper windows belong to other programs.
constexpr int deepestOwnWindow = 4;

/// A mouse may report a thousand motions a second, and a drag is seen soon enough with these.
constexpr std::chrono::milliseconds motionInterval{50};

bool isOwnWindow(xcb_window_t id)
{
    const auto windows = QGuiApplication::allWindows();
    return std::any_of(windows.begin(), windows.end(), [id](const QWindow *window) {
        return window->handle() && window->winId() == id; // winId() alone would create one
    });
}

bool isWheel(unsigned int button)
{
    return button >= firstWheelButton && button <= lastWheelButton;
}

} // namespace

X11GlobalEvents::X11GlobalEvents(XcbConnection &connection)
    : connection_(connection)
{
    motionPause_.setSingleShot(true);
    motionPause_.setInterval(motionInterval);
    QObject::connect(&motionPause_, &QTimer::timeout, &motionPause_, [this] { selectRawEvents(); });
    if (!connection_.isOpen())
        return;
    const auto *input = xcb_get_extension_data(connection_.raw(), &xcb_input_id);
    if (!input || !input->present)
        return;
    inputOpcode_ = input->major_opcode;
    // From 2.1 on raw events also come while another client has grabbed the pointer.
    connection_.await<xcb_input_xi_query_version_reply_t>(
        owner_, xcb_input_xi_query_version(connection_.raw(), 2, 2), [](const auto *) {});
    events_ = connection_.onEvent([this](const xcb_generic_event_t &event) { handle(event); });
}

GlobalEvents::Capabilities X11GlobalEvents::capabilities() const
{
    return {.drags = inputOpcode_ != 0};
}

Task X11GlobalEvents::onLeftMouseDown(Listener listener)
{
    return listen(downListeners_, std::move(listener));
}

Task X11GlobalEvents::onLeftMouseDragged(Listener listener)
{
    return listen(dragListeners_, std::move(listener));
}

Task X11GlobalEvents::onLeftMouseUp(Listener listener)
{
    return listen(upListeners_, std::move(listener));
}

Task X11GlobalEvents::listen(Positions &listeners, Listener listener)
{
    if (!wantsPresses() && inputOpcode_ != 0 && connection_.isOpen())
        queryButtonMap();
    auto registration = std::make_shared<Task>(listeners.add(std::move(listener)));
    selectRawEvents();
    return Task([this, registration, alive = owner_.reference()] {
        if (alive.expired())
            return;
        registration->cancel();
        selectRawEvents();
    });
}

bool X11GlobalEvents::wantsPresses() const
{
    return !downListeners_.isEmpty() || !dragListeners_.isEmpty() || !upListeners_.isEmpty();
}

void X11GlobalEvents::selectRawEvents()
{
    if (inputOpcode_ == 0 || !connection_.isOpen())
        return;
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, 0};
    if (wantsPresses())
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    if (!dragListeners_.isEmpty() || !upListeners_.isEmpty())
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    if (!dragListeners_.isEmpty() && dragButton_ != 0 && !motionPause_.isActive())
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    if (std::exchange(selectedEvents_, selection.mask) == selection.mask)
        return;
    if (!(selection.mask & XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE)) {
        heldButtons_.reset();
        dragButton_ = 0;
    }
    xcb_input_xi_select_events(connection_.raw(), connection_.root(), 1, &selection.head);
    connection_.flush();
}

// Raw events name the physical button; which of them is the left one is up to the user's hand.
void X11GlobalEvents::queryButtonMap()
{
    connection_.await<xcb_get_pointer_mapping_reply_t>(
        owner_, xcb_get_pointer_mapping(connection_.raw()), [this](const auto *reply) {
            if (!reply)
                return;
            const auto *map = xcb_get_pointer_mapping_map(reply);
            buttonMap_.assign(map, map + xcb_get_pointer_mapping_map_length(reply));
        });
    connection_.flush();
}

void X11GlobalEvents::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_MAPPING_NOTIFY) {
        if (wantsPresses())
            queryButtonMap();
        return;
    }
    if (type != XCB_GE_GENERIC)
        return;
    const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
    if (generic.extension != inputOpcode_)
        return;
    const auto button = [&event] {
        return reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event).detail;
    };
    switch (generic.event_type) {
    case XCB_INPUT_RAW_BUTTON_PRESS:
        return pressed(button());
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        return released(button());
    case XCB_INPUT_RAW_MOTION:
        return moved();
    default:
        return;
    }
}

void X11GlobalEvents::pressed(unsigned int button)
{
    if (isWheel(button))
        return;
    const bool hearsRelease = selectedEvents_ & XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    if (hearsRelease && button < heldButtons_.size())
        heldButtons_.set(button);
    locate(button, connection_.root(), 0);
}

void X11GlobalEvents::released(unsigned int button)
{
    if (button < heldButtons_.size())
        heldButtons_.reset(button);
    if (button == 0 || button != dragButton_)
        return;
    dragButton_ = 0;
    selectRawEvents();
    notifyOfPointer(upListeners_);
}

void X11GlobalEvents::moved()
{
    if (dragButton_ == 0 || motionPause_.isActive())
        return;
    motionPause_.start();
    selectRawEvents();
    notifyOfPointer(dragListeners_);
}

bool X11GlobalEvents::isLeft(unsigned int physicalButton) const
{
    const bool mapped = physicalButton >= 1 && physicalButton <= buttonMap_.size();
    return (mapped ? buttonMap_[physicalButton - 1] : physicalButton) == leftButton;
}

/// Looks down from `window` for one of ours under the pointer, and reports the press if there is
/// none. The button is looked up only with the answers: one to a change of the map has come by
/// then.
void X11GlobalEvents::locate(unsigned int physicalButton, xcb_window_t window, int depth)
{
    const auto cookie = xcb_query_pointer(connection_.raw(), window);
    connection_.await<xcb_query_pointer_reply_t>(
        owner_, cookie, [this, physicalButton, depth](const auto *reply) {
            if (!reply || !isLeft(physicalButton) || isOwnWindow(reply->child))
                return;
            if (reply->child != XCB_WINDOW_NONE && depth < deepestOwnWindow)
                locate(physicalButton, reply->child, depth + 1);
            else
                leftPressed(physicalButton, toLogical({reply->root_x, reply->root_y}));
        });
    connection_.flush();
}

void X11GlobalEvents::leftPressed(unsigned int physicalButton, QPointF position)
{
    downListeners_.notify(position);
    if (physicalButton < heldButtons_.size() && heldButtons_.test(physicalButton)) {
        dragButton_ = physicalButton;
        selectRawEvents();
    } else {
        upListeners_.notify(position); // let go before the press was located
    }
}

void X11GlobalEvents::notifyOfPointer(const Positions &listeners)
{
    if (listeners.isEmpty())
        return;
    connection_.await<xcb_query_pointer_reply_t>(
        owner_, xcb_query_pointer(connection_.raw(), connection_.root()),
        [&listeners](const auto *reply) {
            if (reply)
                listeners.notify(toLogical({reply->root_x, reply->root_y}));
        });
    connection_.flush();
}

} // namespace quillmere
