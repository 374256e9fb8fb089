#include "platform/linux/wayland/WaylandProxy.h"

#include "wlr-foreign-toplevel-management-unstable-v1-client.h"
#include "wlr-layer-shell-unstable-v1-client.h"
#include <wayland-client.h>

namespace quillmere {

void ProxyDeleter::operator()(wl_callback *proxy) const
{
    wl_callback_destroy(proxy);
}

void ProxyDeleter::operator()(wl_display *connection) const
{
    wl_display_disconnect(connection);
}

void ProxyDeleter::operator()(wl_output *proxy) const
{
    if (wl_output_get_version(proxy) >= WL_OUTPUT_RELEASE_SINCE_VERSION)
        wl_output_release(proxy);
    else
        wl_output_destroy(proxy);
}

void ProxyDeleter::operator()(wl_registry *proxy) const
{
    wl_registry_destroy(proxy);
}

void ProxyDeleter::operator()(zwlr_foreign_toplevel_handle_v1 *proxy) const
{
    zwlr_foreign_toplevel_handle_v1_destroy(proxy);
}

void ProxyDeleter::operator()(zwlr_foreign_toplevel_manager_v1 *proxy) const
{
    zwlr_foreign_toplevel_manager_v1_destroy(proxy);
}

void ProxyDeleter::operator()(zwlr_layer_shell_v1 *proxy) const
{
    zwlr_layer_shell_v1_destroy(proxy);
}

void ProxyDeleter::operator()(zwlr_layer_surface_v1 *proxy) const
{
    zwlr_layer_surface_v1_destroy(proxy);
}

} // namespace quillmere
