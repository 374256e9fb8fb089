#include "platform/linux/window/X11Surface.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/shape.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

namespace quillmere {

namespace {

void setCardinals(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t property,
                  std::initializer_list<std::uint32_t> values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_CARDINAL, 32,
                        static_cast<std::uint32_t>(values.size()), values.begin());
}

void setShape(xcb_connection_t *connection, xcb_window_t window, xcb_shape_kind_t kind,
              const QRegion &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region) {
        rectangles.push_back(
            {static_cast<std::int16_t>(rect.x()), static_cast<std::int16_t>(rect.y()),
             static_cast<std::uint16_t>(rect.width()), static_cast<std::uint16_t>(rect.height())});
    }
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0,
                         0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

} // namespace

X11Surface::X11Surface(xcb_connection_t *connection, xcb_window_t window)
    : connection_(connection)
    , window_(window)
{
}

std::optional<X11Surface> X11Surface::of(const QWindow &window)
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !window.handle())
        return std::nullopt;
    return X11Surface(x11->connection(), static_cast<xcb_window_t>(window.winId()));
}

void X11Surface::describe(const X11Atoms &atoms, bool hasShadow) const
{
    static constexpr std::string_view instanceAndClass("quillmere\0Quillmere\0", 20);
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, instanceAndClass.size(), instanceAndClass.data());

    // Compositors make tooltips, which is what Qt calls this window, translucent and put shadows
    // round them; the canvas would get one round its full, invisible size. Docks they leave alone.
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, atoms.windowType,
                        XCB_ATOM_ATOM, 32, 1, &atoms.dock);
    setCardinals(connection_, window_, atoms.comptonShadow, {hasShadow ? 1U : 0U});
    if (!hasShadow)
        setCardinals(connection_, window_, atoms.frameExtents, {0, 0, 0, 0});
}

void X11Surface::setInputRegion(const QRegion &region) const
{
    setShape(connection_, window_, XCB_SHAPE_SK_INPUT, region);
}

void X11Surface::setBoundingRegion(const std::optional<QRegion> &region) const
{
    if (region)
        setShape(connection_, window_, XCB_SHAPE_SK_BOUNDING, *region);
    else
        xcb_shape_mask(connection_, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window_, 0, 0,
                       XCB_PIXMAP_NONE);
}

xcb_window_t X11Surface::focusedWindow() const
{
    const std::unique_ptr<xcb_get_input_focus_reply_t, void (*)(void *)> reply(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr),
        std::free);
    return reply ? reply->focus : XCB_NONE;
}

void X11Surface::returnFocus(xcb_window_t window) const
{
    if (focusedWindow() != window_)
        return;
    // Window managers look for another window when the focus falls back to the root.
    const xcb_window_t heir =
        canHaveFocus(window) ? window : xcb_window_t{XCB_INPUT_FOCUS_POINTER_ROOT};
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_POINTER_ROOT, heir, XCB_CURRENT_TIME);
}

bool X11Surface::canHaveFocus(xcb_window_t window) const
{
    if (window <= XCB_INPUT_FOCUS_POINTER_ROOT) // no window at all
        return window == XCB_INPUT_FOCUS_POINTER_ROOT;
    const std::unique_ptr<xcb_get_window_attributes_reply_t, void (*)(void *)> reply(
        xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, window),
                                        nullptr),
        std::free);
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void X11Surface::flush() const
{
    xcb_flush(connection_);
}

} // namespace quillmere
