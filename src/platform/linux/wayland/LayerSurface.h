#pragma once

#include "platform/linux/wayland/WaylandProxy.h"

#include "wlr-layer-shell-unstable-v1-client.h"

#include <QRect>

#include <functional>

namespace quillmere {

/// Gives a wl_surface the role of a surface that hangs from the top edge of an output: over
/// full-screen windows, over what panels have reserved, without the keyboard until it is wanted.
/// Destroying it takes the surface off the screen; that has to happen before the wl_surface goes.
///
/// Either callback may destroy it.
class LayerSurface
{
public:
    /// Asks the compositor to map the surface; it may be drawn once `onConfigured` has been called.
    /// Lengths are Wayland's logical units, from the output's top left corner.
    LayerSurface(zwlr_layer_shell_v1 &shell, wl_surface &surface, wl_output &output,
                 const QRect &rect);

    LayerSurface(const LayerSurface &) = delete;
    LayerSurface &operator=(const LayerSurface &) = delete;

    /// Puts its top left corner there.
    void move(QPoint position);

    enum class Keyboard {
        None,
        Taken, ///< from whatever has it, and kept from all others
        Lent   ///< as a window's; Taken where the compositor does not know it
    };
    void setKeyboard(Keyboard keyboard);

    std::function<void()> onConfigured; ///< the first time only
    std::function<void()> onClosed;     ///< the compositor has taken it off the screen for good

private:
    static void configure(void *self, zwlr_layer_surface_v1 *surface, std::uint32_t serial,
                          std::uint32_t width, std::uint32_t height);
    static void closed(void *self, zwlr_layer_surface_v1 *surface);
    static const zwlr_layer_surface_v1_listener listener;

    void setPosition(QPoint position);

    wl_surface &surface_;
    WaylandProxy<zwlr_layer_surface_v1> role_;
    QPoint position_;
    bool configured_ = false;
};

} // namespace quillmere
