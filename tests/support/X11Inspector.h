#pragma once

#include "platform/linux/window/XcbReply.h"

#include <QRect>
#include <QRegion>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <array>
#include <string_view>
#include <vector>

namespace quillmere {

/// Another client's view of an X server: it looks at foreign windows, and owns plain ones.
/// Everything here waits for the server.
class X11Inspector
{
public:
    X11Inspector()
        : connection_(xcb_connect(nullptr, nullptr))
        , root_(xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root)
    {
    }
    X11Inspector(const X11Inspector &) = delete;
    X11Inspector &operator=(const X11Inspector &) = delete;
    ~X11Inspector() { xcb_disconnect(connection_); }

    xcb_window_t root() const { return root_; }

    xcb_atom_t atom(std::string_view name)
    {
        const auto cookie = xcb_intern_atom(connection_, false,
                                            static_cast<std::uint16_t>(name.size()), name.data());
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection_, cookie, nullptr));
        return reply->atom;
    }

    std::vector<std::uint32_t> property(xcb_window_t window, std::string_view name)
    {
        const auto cookie = xcb_get_property(connection_, false, window, atom(name),
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_, cookie, nullptr));
        if (!reply || reply->format != 32)
            return {};
        const auto *values =
            static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
        return {values, values + reply->value_len};
    }

    xcb_window_t activeWindow()
    {
        const auto windows = property(root_, "_NET_ACTIVE_WINDOW");
        return windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows.front();
    }

    /// What a window manager does.
    void setActiveWindow(xcb_window_t window)
    {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, root_, atom("_NET_ACTIVE_WINDOW"),
                            XCB_ATOM_WINDOW, 32, 1, &window);
        xcb_flush(connection_);
    }

    /// In native pixels of the root window.
    QRect geometry(xcb_window_t window)
    {
        const XcbReply<xcb_get_geometry_reply_t> size(
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
        const XcbReply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
            connection_, xcb_translate_coordinates(connection_, window, root_, 0, 0), nullptr));
        if (!size || !place)
            return {};
        return {place->dst_x, place->dst_y, size->width, size->height};
    }

    bool isViewable(xcb_window_t window)
    {
        const XcbReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
            connection_, xcb_get_window_attributes(connection_, window), nullptr));
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    QRegion shape(xcb_window_t window, xcb_shape_kind_t kind)
    {
        const auto cookie = xcb_shape_get_rectangles(connection_, window, kind);
        const XcbReply<xcb_shape_get_rectangles_reply_t> reply(
            xcb_shape_get_rectangles_reply(connection_, cookie, nullptr));
        QRegion region;
        for (auto it = xcb_shape_get_rectangles_rectangles_iterator(reply.get()); it.rem > 0;
             xcb_rectangle_next(&it))
            region += QRect(it.data->x, it.data->y, it.data->width, it.data->height);
        return region;
    }

    /// The viewable children of the root, the topmost last.
    std::vector<xcb_window_t> stack()
    {
        const XcbReply<xcb_query_tree_reply_t> reply(
            xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
        const auto *children = xcb_query_tree_children(reply.get());
        std::vector<xcb_window_t> windows(children,
                                          children + xcb_query_tree_children_length(reply.get()));
        std::erase_if(windows, [this](xcb_window_t window) { return !isViewable(window); });
        return windows;
    }

    /// A window of another program, mapped. An unmanaged one goes in front of all others.
    xcb_window_t openWindow(const QRect &area, bool fullscreen = false, bool managed = true,
                            const QByteArray &className = {})
    {
        const std::uint32_t unmanaged = managed ? 0 : 1;
        const auto window = xcb_generate_id(connection_);
        xcb_create_window(
            connection_, XCB_COPY_FROM_PARENT, window, root_, static_cast<std::int16_t>(area.x()),
            static_cast<std::int16_t>(area.y()), static_cast<std::uint16_t>(area.width()),
            static_cast<std::uint16_t>(area.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
            XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
        // Asks the window manager to leave the place as it is.
        constexpr std::uint32_t userPosition[18] = {1};
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                            XCB_ATOM_WM_SIZE_HINTS, 32, 18, userPosition);
        if (fullscreen) {
            const auto state = atom("_NET_WM_STATE_FULLSCREEN");
            xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_STATE"),
                                XCB_ATOM_ATOM, 32, 1, &state);
        }
        if (!className.isEmpty()) {
            const QByteArray names = QByteArray("instance") + '\0' + className + '\0';
            xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                                XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()),
                                names.constData());
        }
        xcb_map_window(connection_, window);
        xcb_flush(connection_);
        return window;
    }
    void moveWindow(xcb_window_t window, const QRect &area)
    {
        const std::array values{area.x(), area.y(), area.width(), area.height()};
        xcb_configure_window(connection_, window,
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                 XCB_CONFIG_WINDOW_HEIGHT,
                             values.data());
        xcb_flush(connection_);
    }
    void closeWindow(xcb_window_t window)
    {
        xcb_destroy_window(connection_, window);
        xcb_flush(connection_);
    }

    /// Asks the window manager to make a window full-screen or to undo that.
    void setFullscreen(xcb_window_t window, bool on)
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atom("_NET_WM_STATE");
        message.data.data32[0] = on ? 1 : 0;
        message.data.data32[1] = atom("_NET_WM_STATE_FULLSCREEN");
        xcb_send_event(connection_, false, root_,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
        xcb_flush(connection_);
    }

    /// Which logical button each physical one is; waits until the server has taken it.
    void setButtonMap(const std::vector<std::uint8_t> &map)
    {
        const auto cookie =
            xcb_set_pointer_mapping(connection_, static_cast<std::uint8_t>(map.size()), map.data());
        const XcbReply<xcb_set_pointer_mapping_reply_t> reply(
            xcb_set_pointer_mapping_reply(connection_, cookie, nullptr));
    }
    std::vector<std::uint8_t> buttonMap()
    {
        const XcbReply<xcb_get_pointer_mapping_reply_t> reply(xcb_get_pointer_mapping_reply(
            connection_, xcb_get_pointer_mapping(connection_), nullptr));
        const auto *map = xcb_get_pointer_mapping_map(reply.get());
        return {map, map + xcb_get_pointer_mapping_map_length(reply.get())};
    }

private:
    xcb_connection_t *connection_;
    xcb_window_t root_;
};

} // namespace quillmere
