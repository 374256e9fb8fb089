#pragma once

#include "platform/linux/window/X11Atoms.h"

#include <QRegion>

#include <optional>

class QWindow;

namespace quillmere {

/// The X window below a QWindow, for what Qt has no words for. Requests go over Qt's own
/// connection, so they keep their order with Qt's. Valid as long as the QWindow's surface; never
/// keep one.
class X11Surface
{
public:
    /// Nothing while the window has no surface or Qt does not run on X.
    static std::optional<X11Surface> of(const QWindow &window);

    /// Tells desktops what kind of window this is.
    void describe(const X11Atoms &atoms, bool hasShadow) const;

    /// Where the window takes input, in device pixels.
    void setInputRegion(const QRegion &region) const;

    /// What of the window exists at all; nothing for all of it.
    void setBoundingRegion(const std::optional<QRegion> &region) const;

    /// The window that has the keyboard now; XCB_NONE without one.
    xcb_window_t focusedWindow() const;

    /// Gives the keyboard to `window`, unless the user has taken it elsewhere already. If that one
    /// has gone, the window manager chooses.
    void returnFocus(xcb_window_t window) const;

    void flush() const;

private:
    X11Surface(xcb_connection_t *connection, xcb_window_t window);
    bool canHaveFocus(xcb_window_t window) const;

    xcb_connection_t *connection_;
    xcb_window_t window_;
};

} // namespace quillmere
