#include "platform/linux/wayland/WaylandProbe.h"

#include "platform/linux/wayland/WaylandProxy.h"

#include "wlr-layer-shell-unstable-v1-client.h"
#include <wayland-client.h>

#include <poll.h>

#include <chrono>
#include <cstdlib>
#include <cstring>

namespace quillmere {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds patience{500};

struct Answer {
    bool layerShell = false;
    bool complete = false;
};

void globalAdded(void *data, wl_registry *, std::uint32_t, const char *interface, std::uint32_t)
{
    if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0)
        static_cast<Answer *>(data)->layerShell = true;
}

void globalRemoved(void *, wl_registry *, std::uint32_t) {}

void syncDone(void *data, wl_callback *, std::uint32_t)
{
    static_cast<Answer *>(data)->complete = true;
}

constexpr wl_registry_listener registryListener{globalAdded, globalRemoved};
constexpr wl_callback_listener syncListener{syncDone};

bool isReadable(wl_display *display, Clock::time_point deadline)
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    pollfd socket{wl_display_get_fd(display), POLLIN, 0};
    return left > 0 && poll(&socket, 1, static_cast<int>(left)) > 0;
}

/// Takes in what the compositor has to say; false when it keeps silent or has gone.
bool dispatch(wl_display *display, Clock::time_point deadline)
{
    while (wl_display_prepare_read(display) != 0) {
        if (wl_display_dispatch_pending(display) < 0)
            return false;
    }
    wl_display_flush(display);
    if (!isReadable(display, deadline)) {
        wl_display_cancel_read(display);
        return false;
    }
    return wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
}

} // namespace

bool compositorOffersLayerShell()
{
    // An inherited connection (WAYLAND_SOCKET) serves one use and is left to Qt.
    const char *name = std::getenv("WAYLAND_DISPLAY");
    if (!name || std::getenv("WAYLAND_SOCKET"))
        return false;
    const WaylandProxy<wl_display> display(wl_display_connect(name));
    if (!display)
        return false;
    Answer answer;
    const WaylandProxy<wl_registry> registry(wl_display_get_registry(display.get()));
    const WaylandProxy<wl_callback> sync(wl_display_sync(display.get()));
    wl_registry_add_listener(registry.get(), &registryListener, &answer);
    wl_callback_add_listener(sync.get(), &syncListener, &answer);
    const auto deadline = Clock::now() + patience;
    while (!answer.complete && dispatch(display.get(), deadline)) {
    }
    return answer.layerShell;
}

} // namespace quillmere
