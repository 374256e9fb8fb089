#pragma once

#include "platform/Listeners.h"
#include "platform/linux/wayland/WaylandOutputs.h"
#include "platform/linux/wayland/WaylandProxy.h"
#include "platform/linux/wayland/WaylandToplevels.h"

#include "wlr-layer-shell-unstable-v1-client.h"
#include <wayland-client.h>

#include <optional>

namespace quillmere {

/// What the compositor offers beyond what Qt uses. Its answer comes a moment after construction.
/// Main thread only.
class WaylandGlobals
{
public:
    /// Asks over Qt's connection.
    explicit WaylandGlobals(wl_display &display);

    /// Null until the compositor has answered, and for ever where there is none.
    zwlr_layer_shell_v1 *layerShell() const { return layerShell_.get(); }

    /// Null likewise; there for as long as this object from the answer on.
    WaylandToplevels *toplevels() { return toplevels_ ? &*toplevels_ : nullptr; }

    WaylandOutputs &outputs() { return outputs_; }

    Task onAnswered(std::function<void()> listener) { return answered_.add(std::move(listener)); }

private:
    static void globalAdded(void *self, wl_registry *registry, std::uint32_t name,
                            const char *interface, std::uint32_t version);
    static void globalRemoved(void *self, wl_registry *registry, std::uint32_t name);
    static void complete(void *self, wl_callback *sync, std::uint32_t);

    WaylandProxy<wl_registry> registry_;
    WaylandProxy<wl_callback> sync_;
    WaylandProxy<zwlr_layer_shell_v1> layerShell_;
    std::optional<WaylandToplevels> toplevels_;
    WaylandOutputs outputs_;
    Listeners<> answered_;
};

} // namespace quillmere
