#pragma once

namespace quillmere {

/// Whether the compositor named by the environment lets programs hang surfaces over a screen's edge
/// (zwlr_layer_shell_v1). To be asked before the QGuiApplication, which has to know its window
/// system. Waits for the compositor, but not for one that keeps silent.
bool compositorOffersLayerShell();

} // namespace quillmere
