#pragma once

#include "platform/Listeners.h"
#include "platform/linux/wayland/WaylandProxy.h"

#include <cstdint>
#include <map>

namespace quillmere {

/// Tells when an output changes its scale. Qt says so only where its logical size changes as well,
/// which it does not when mode and scale change together.
class WaylandOutputs
{
public:
    void add(wl_registry &registry, std::uint32_t name, std::uint32_t version);
    void remove(std::uint32_t name) { outputs_.erase(name); }

    /// Calls back before or after Qt has heard of it.
    Task onScaleChanged(std::function<void()> listener)
    {
        return listeners_.add(std::move(listener));
    }

private:
    struct Events;

    std::map<std::uint32_t, WaylandProxy<wl_output>> outputs_; // by the registry's name
    Listeners<> listeners_;
};

} // namespace quillmere
