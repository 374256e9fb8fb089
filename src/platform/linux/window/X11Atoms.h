#pragma once

#include <xcb/xcb.h>

namespace quillmere {

/// The atoms the window code speaks in.
struct X11Atoms {
    xcb_atom_t activeWindow = XCB_ATOM_NONE;
    xcb_atom_t clientList = XCB_ATOM_NONE; ///< the oldest window first
    xcb_atom_t clientListStacking = XCB_ATOM_NONE;
    xcb_atom_t windowState = XCB_ATOM_NONE;
    xcb_atom_t fullscreen = XCB_ATOM_NONE;
    xcb_atom_t compositor = XCB_ATOM_NONE; ///< owned by whoever composites the screen
    xcb_atom_t windowType = XCB_ATOM_NONE;
    xcb_atom_t dock = XCB_ATOM_NONE;
    xcb_atom_t comptonShadow = XCB_ATOM_NONE;
    xcb_atom_t frameExtents = XCB_ATOM_NONE;
    xcb_atom_t desktopFile = XCB_ATOM_NONE;    ///< set by Qt: the desktop entry
    xcb_atom_t gtkApplication = XCB_ATOM_NONE; ///< set by GTK: likewise
    xcb_atom_t dragSelection = XCB_ATOM_NONE;  ///< owned by whoever has started the latest drag
    xcb_atom_t targets = XCB_ATOM_NONE;
    xcb_atom_t uriList = XCB_ATOM_NONE;
    xcb_atom_t incremental = XCB_ATOM_NONE;
    xcb_atom_t dragContent = XCB_ATOM_NONE; ///< where we have it delivered

    /// Waits for the server once; for start-up.
    static X11Atoms intern(xcb_connection_t *connection, int screenNumber);
};

} // namespace quillmere
