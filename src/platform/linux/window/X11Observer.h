#pragma once

#include "platform/linux/window/X11Atoms.h"
#include "platform/linux/window/XcbConnection.h"
#include "platform/linux/window/XcbSelectionWatch.h"

#include <QRect>

#include <optional>

namespace quillmere {

/// What happens around the panel on an X desktop: which window fills a screen, when windows are
/// restacked, whether somebody composites. Main thread only.
class X11Observer
{
public:
    X11Observer();

    XcbConnection &connection() { return connection_; }
    const X11Atoms &atoms() const { return atoms_; }

    /// XCB_WINDOW_NONE while there is none.
    xcb_window_t activeWindow() const { return activeWindow_; }
    Task onActivated(std::function<void()> listener);

    /// The active window's place in native pixels if it is a full-screen window.
    std::optional<QRect> fullscreenWindow() const { return fullscreenWindow_; }
    Task onFullscreenWindowChanged(std::function<void()> listener);

    /// Whether windows may be translucent. Also true where nobody can tell.
    bool isComposited() const { return composited_; }
    Task onCompositedChanged(std::function<void()> listener);

    /// Another window was activated or the order of the windows changed.
    Task onRestacked(std::function<void()> listener);

private:
    void watchRoot();
    void watchCompositor();
    void handle(const xcb_generic_event_t &event);
    void propertyChanged(const xcb_property_notify_event_t &event);
    void queryActiveWindow();
    void activate(xcb_window_t window);
    void queryFullscreen();
    void queryCompositor();
    void setComposited(const xcb_get_selection_owner_reply_t *reply);
    void setFullscreenWindow(std::optional<QRect> geometry);

    XcbConnection connection_;
    X11Atoms atoms_;
    XcbSelectionWatch compositor_;

    xcb_window_t activeWindow_ = XCB_WINDOW_NONE;
    int fullscreenQueries_ = 0; // on their way
    std::optional<QRect> fullscreenWindow_;
    bool composited_ = true;

    Listeners<> activationListeners_;
    Listeners<> fullscreenListeners_;
    Listeners<> compositedListeners_;
    Listeners<> restackListeners_;
    Task events_;
    Owner owner_;
};

} // namespace quillmere
