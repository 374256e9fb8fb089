#include "platform/linux/window/X11Observer.h"

#include <xcb/xfixes.h>

#include <algorithm>
#include <span>

namespace quillmere {

namespace {

constexpr std::uint32_t rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
constexpr std::uint32_t activeWindowEvents =
    XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

template <class Event>
const Event &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const Event &>(event);
}

std::span<const std::uint32_t> values(const xcb_get_property_reply_t *reply)
{
    if (!reply || reply->format != 32)
        return {};
    return {static_cast<const std::uint32_t *>(xcb_get_property_value(reply)), reply->value_len};
}

void select(xcb_connection_t *connection, xcb_window_t window, std::uint32_t events)
{
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);
}

} // namespace

X11Observer::X11Observer()
{
    if (!connection_.isOpen())
        return;
    xcb_prefetch_extension_data(connection_.raw(), &xcb_xfixes_id);
    atoms_ = X11Atoms::intern(connection_.raw(), connection_.screenNumber());
    events_ = connection_.onEvent([this](const xcb_generic_event_t &event) { handle(event); });
    watchRoot();
    watchCompositor();
    connection_.flush();
}

Task X11Observer::onActivated(std::function<void()> listener)
{
    return activationListeners_.add(std::move(listener));
}

Task X11Observer::onFullscreenWindowChanged(std::function<void()> listener)
{
    return fullscreenListeners_.add(std::move(listener));
}

Task X11Observer::onCompositedChanged(std::function<void()> listener)
{
    return compositedListeners_.add(std::move(listener));
}

Task X11Observer::onRestacked(std::function<void()> listener)
{
    return restackListeners_.add(std::move(listener));
}

void X11Observer::watchRoot()
{
    select(connection_.raw(), connection_.root(), rootEvents);
    queryActiveWindow();
}

void X11Observer::watchCompositor()
{
    compositor_.start(connection_, connection_.root(), atoms_.compositor);
    // Waited for, since the first frame could come out in the wrong shape without it.
    const XcbReply<xcb_get_selection_owner_reply_t> first(xcb_get_selection_owner_reply(
        connection_.raw(), xcb_get_selection_owner(connection_.raw(), atoms_.compositor), nullptr));
    setComposited(first.get());
}

void X11Observer::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        propertyChanged(as<xcb_property_notify_event_t>(event));
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const bool matters = fullscreenWindow_ || fullscreenQueries_ > 0;
        if (matters && as<xcb_configure_notify_event_t>(event).window == activeWindow_)
            queryFullscreen();
    } else if (type == XCB_UNMAP_NOTIFY || type == XCB_DESTROY_NOTIFY) {
        // Some window managers go on calling a window active that is gone.
        if (as<xcb_unmap_notify_event_t>(event).window == activeWindow_)
            setFullscreenWindow(std::nullopt);
    } else if (type == XCB_MAP_NOTIFY) {
        if (as<xcb_map_notify_event_t>(event).window == activeWindow_)
            queryFullscreen();
    } else if (compositor_.change(event)) {
        queryCompositor();
    }
}

void X11Observer::propertyChanged(const xcb_property_notify_event_t &event)
{
    if (event.window == connection_.root()) {
        const bool activated = event.atom == atoms_.activeWindow;
        if (activated)
            queryActiveWindow();
        if (activated || event.atom == atoms_.clientListStacking)
            restackListeners_.notify();
    } else if (event.window == activeWindow_ && event.atom == atoms_.windowState) {
        queryFullscreen();
    }
}

void X11Observer::queryActiveWindow()
{
    const auto cookie = xcb_get_property(connection_.raw(), false, connection_.root(),
                                         atoms_.activeWindow, XCB_ATOM_WINDOW, 0, 1);
    connection_.await<xcb_get_property_reply_t>(owner_, cookie, [this](const auto *reply) {
        const auto windows = values(reply);
        activate(windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows.front());
    });
    connection_.flush();
}

void X11Observer::activate(xcb_window_t window)
{
    if (window == activeWindow_)
        return;
    if (activeWindow_ != XCB_WINDOW_NONE)
        select(connection_.raw(), activeWindow_, XCB_EVENT_MASK_NO_EVENT);
    activeWindow_ = window;
    if (window == XCB_WINDOW_NONE) {
        setFullscreenWindow(std::nullopt);
    } else {
        select(connection_.raw(), window, activeWindowEvents);
        queryFullscreen();
    }
    activationListeners_.notify();
}

void X11Observer::queryFullscreen()
{
    struct Answer {
        bool fullscreen = false;
        QSize size;
    };
    const auto answer = std::make_shared<Answer>();
    const auto window = activeWindow_;
    auto *raw = connection_.raw();
    ++fullscreenQueries_;

    constexpr std::uint32_t mostStates = 64;
    connection_.await<xcb_get_property_reply_t>(
        owner_,
        xcb_get_property(raw, false, window, atoms_.windowState, XCB_ATOM_ATOM, 0, mostStates),
        [this, answer](const auto *reply) {
            const auto states = values(reply);
            answer->fullscreen =
                std::find(states.begin(), states.end(), atoms_.fullscreen) != states.end();
        });
    connection_.await<xcb_get_geometry_reply_t>(
        owner_, xcb_get_geometry(raw, window), [answer](const auto *reply) {
            answer->size = reply ? QSize(reply->width, reply->height) : QSize();
        });
    connection_.await<xcb_translate_coordinates_reply_t>(
        owner_, xcb_translate_coordinates(raw, window, connection_.root(), 0, 0),
        [this, answer, window](const auto *reply) {
            --fullscreenQueries_;
            if (window != activeWindow_)
                return;
            setFullscreenWindow(
                reply && answer->fullscreen
                    ? std::optional(QRect(QPoint(reply->dst_x, reply->dst_y), answer->size))
                    : std::nullopt);
        });
    connection_.flush();
}

void X11Observer::queryCompositor()
{
    connection_.await<xcb_get_selection_owner_reply_t>(
        owner_, xcb_get_selection_owner(connection_.raw(), atoms_.compositor),
        [this](const auto *reply) { setComposited(reply); });
    connection_.flush();
}

void X11Observer::setComposited(const xcb_get_selection_owner_reply_t *reply)
{
    const bool composited = reply && reply->owner != XCB_WINDOW_NONE;
    if (std::exchange(composited_, composited) != composited)
        compositedListeners_.notify();
}

void X11Observer::setFullscreenWindow(std::optional<QRect> geometry)
{
    if (std::exchange(fullscreenWindow_, geometry) != geometry)
        fullscreenListeners_.notify();
}

} // namespace quillmere
