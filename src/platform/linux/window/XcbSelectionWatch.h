#pragma once

#include "platform/Owner.h"

#include <xcb/xfixes.h>

#include <optional>

namespace quillmere {

class XcbConnection;

/// Hears who owns an X selection. Without the XFixes extension it never hears anything.
class XcbSelectionWatch
{
public:
    /// `window` is told of the changes; the watch ends with it.
    void start(XcbConnection &connection, xcb_window_t window, xcb_atom_t selection);

    /// The change, if the event is one of this selection's owner; else null.
    const xcb_xfixes_selection_notify_event_t *change(const xcb_generic_event_t &event) const;

private:
    Owner owner_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    std::optional<std::uint8_t> firstEvent_; ///< the extension's, if it is there
};

} // namespace quillmere
