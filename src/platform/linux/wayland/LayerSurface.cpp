#include "platform/linux/wayland/LayerSurface.h"

#include <wayland-client.h>

namespace quillmere {

namespace {

constexpr int underReservedAreas = -1;
constexpr std::uint32_t onDemandSince = 4;
constexpr const char *surfaceNamespace = "quillmere";

} // namespace

const zwlr_layer_surface_v1_listener LayerSurface::listener{configure, closed};

LayerSurface::LayerSurface(zwlr_layer_shell_v1 &shell, wl_surface &surface, wl_output &output,
                           const QRect &rect)
    : surface_(surface)
    , role_(zwlr_layer_shell_v1_get_layer_surface(
          &shell, &surface, &output, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, surfaceNamespace))
{
    zwlr_layer_surface_v1_add_listener(role_.get(), &listener, this);
    zwlr_layer_surface_v1_set_size(role_.get(), static_cast<std::uint32_t>(rect.width()),
                                   static_cast<std::uint32_t>(rect.height()));
    // Not centred by the compositor: a camera housing need not be in the middle.
    zwlr_layer_surface_v1_set_anchor(role_.get(), ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                                      ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_exclusive_zone(role_.get(), underReservedAreas);
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        role_.get(), ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    setPosition(rect.topLeft());
    wl_surface_commit(&surface_);
}

void LayerSurface::move(QPoint position)
{
    if (position == position_)
        return;
    setPosition(position);
    wl_surface_commit(&surface_);
}

void LayerSurface::setKeyboard(Keyboard keyboard)
{
    auto interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE;
    if (keyboard == Keyboard::Lent &&
        zwlr_layer_surface_v1_get_version(role_.get()) >= onDemandSince)
        interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND;
    else if (keyboard != Keyboard::None)
        interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE;
    zwlr_layer_surface_v1_set_keyboard_interactivity(role_.get(), interactivity);
    wl_surface_commit(&surface_);
}

void LayerSurface::setPosition(QPoint position)
{
    position_ = position;
    zwlr_layer_surface_v1_set_margin(role_.get(), position.y(), 0, 0, position.x());
}

void LayerSurface::configure(void *self, zwlr_layer_surface_v1 *surface, std::uint32_t serial,
                             std::uint32_t, std::uint32_t)
{
    // The size is ours alone: of a surface that is not stretched, the compositor returns it.
    zwlr_layer_surface_v1_ack_configure(surface, serial);
    auto &layerSurface = *static_cast<LayerSurface *>(self);
    if (layerSurface.configured_)
        return;
    layerSurface.configured_ = true;
    const auto callback = layerSurface.onConfigured;
    callback();
}

void LayerSurface::closed(void *self, zwlr_layer_surface_v1 *)
{
    const auto callback = static_cast<LayerSurface *>(self)->onClosed;
    callback();
}

} // namespace quillmere
