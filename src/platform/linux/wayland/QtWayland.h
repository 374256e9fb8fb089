#pragma once

class QScreen;
class QWindow;
struct wl_display;
struct wl_output;
struct wl_surface;

/// The Wayland objects below Qt's. Qt owns them and hands out their events on the main thread;
/// objects made from them are served there too. Null where Qt has none. Never keep a surface or an
/// output: they go with the window and the monitor.
namespace quillmere::qtwayland {

/// True when the QGuiApplication runs on Wayland.
bool isUsed();

/// Has Qt choose now, by the environment as it is, how it hands buffers to the compositor.
void chooseBuffers();

/// How many of Wayland's units one of Qt's is on this screen: 1 unless the user has Qt enlarge
/// everything (QT_SCALE_FACTOR). The scale of the output is not in it.
double unitsOf(const QScreen &screen);

wl_display *display();
wl_output *outputOf(QScreen &screen);
wl_surface *surfaceOf(QWindow &window);

} // namespace quillmere::qtwayland
