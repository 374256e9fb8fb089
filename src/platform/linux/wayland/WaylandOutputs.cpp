#include "platform/linux/wayland/WaylandOutputs.h"

#include <wayland-client.h>

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::uint32_t scaleVersion = WL_OUTPUT_SCALE_SINCE_VERSION;
constexpr std::uint32_t newestVersion = WL_OUTPUT_RELEASE_SINCE_VERSION;

} // namespace

struct WaylandOutputs::Events {
    static void geometry(void *, wl_output *, std::int32_t, std::int32_t, std::int32_t,
                         std::int32_t, std::int32_t, const char *, const char *, std::int32_t)
    {
    }
    static void mode(void *, wl_output *, std::uint32_t, std::int32_t, std::int32_t, std::int32_t)
    {
    }
    static void done(void *, wl_output *) {}
    static void scale(void *self, wl_output *, std::int32_t)
    {
        static_cast<WaylandOutputs *>(self)->listeners_.notify();
    }
    static void text(void *, wl_output *, const char *) {}

    static constexpr wl_output_listener listener{geometry, mode, done, scale, text, text};
};

void WaylandOutputs::add(wl_registry &registry, std::uint32_t name, std::uint32_t version)
{
    if (version < scaleVersion)
        return;
    auto *output = static_cast<wl_output *>(
        wl_registry_bind(&registry, name, &wl_output_interface, std::min(version, newestVersion)));
    wl_output_add_listener(output, &Events::listener, this);
    outputs_[name].reset(output);
}

} // namespace quillmere
