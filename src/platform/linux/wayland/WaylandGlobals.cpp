#include "platform/linux/wayland/WaylandGlobals.h"

#include <QDebug>

#include <algorithm>
#include <cstring>

namespace quillmere {

namespace {

/// The newest whose requests we know.
constexpr std::uint32_t newestLayerShell = 4;

/// Full-screen states are told from this version on.
constexpr std::uint32_t toplevelVersion = 2;

bool is(const char *interface, const wl_interface &wanted)
{
    return std::strcmp(interface, wanted.name) == 0;
}

template <class Proxy>
Proxy *bind(wl_registry *registry, std::uint32_t name, const wl_interface &interface,
            std::uint32_t version)
{
    return static_cast<Proxy *>(wl_registry_bind(registry, name, &interface, version));
}

} // namespace

WaylandGlobals::WaylandGlobals(wl_display &display)
    : registry_(wl_display_get_registry(&display))
    , sync_(wl_display_sync(&display))
{
    static constexpr wl_registry_listener registryListener{globalAdded, globalRemoved};
    static constexpr wl_callback_listener syncListener{complete};
    wl_registry_add_listener(registry_.get(), &registryListener, this);
    wl_callback_add_listener(sync_.get(), &syncListener, this);
    wl_display_flush(&display);
}

void WaylandGlobals::globalAdded(void *data, wl_registry *registry, std::uint32_t name,
                                 const char *interface, std::uint32_t version)
{
    auto &self = *static_cast<WaylandGlobals *>(data);
    if (is(interface, zwlr_layer_shell_v1_interface) && !self.layerShell_) {
        self.layerShell_.reset(bind<zwlr_layer_shell_v1>(
            registry, name, zwlr_layer_shell_v1_interface, std::min(version, newestLayerShell)));
    } else if (is(interface, zwlr_foreign_toplevel_manager_v1_interface) &&
               version >= toplevelVersion && !self.toplevels_) {
        self.toplevels_.emplace(*bind<zwlr_foreign_toplevel_manager_v1>(
            registry, name, zwlr_foreign_toplevel_manager_v1_interface, toplevelVersion));
    } else if (is(interface, wl_output_interface)) {
        self.outputs_.add(*registry, name, version);
    }
}

void WaylandGlobals::globalRemoved(void *data, wl_registry *, std::uint32_t name)
{
    static_cast<WaylandGlobals *>(data)->outputs_.remove(name);
}

void WaylandGlobals::complete(void *data, wl_callback *, std::uint32_t)
{
    auto &self = *static_cast<WaylandGlobals *>(data);
    if (!self.layerShell_)
        qWarning("[WaylandGlobals] this compositor has no layer shell: the island cannot be shown");
    self.answered_.notify();
}

} // namespace quillmere
