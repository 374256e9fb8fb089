#pragma once

#include <memory>

struct wl_callback;
struct wl_display;
struct wl_output;
struct wl_registry;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace quillmere {

/// Makes each kind of protocol object's own last request.
struct ProxyDeleter {
    void operator()(wl_callback *proxy) const;
    void operator()(wl_display *connection) const;
    void operator()(wl_output *proxy) const;
    void operator()(wl_registry *proxy) const;
    void operator()(zwlr_foreign_toplevel_handle_v1 *proxy) const;
    void operator()(zwlr_foreign_toplevel_manager_v1 *proxy) const;
    void operator()(zwlr_layer_shell_v1 *proxy) const;
    void operator()(zwlr_layer_surface_v1 *proxy) const;
};

/// Owns a Wayland protocol object.
template <class Proxy>
using WaylandProxy = std::unique_ptr<Proxy, ProxyDeleter>;

} // namespace quillmere
