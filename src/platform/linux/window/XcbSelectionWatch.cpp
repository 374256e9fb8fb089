#include "platform/linux/window/XcbSelectionWatch.h"

#include "platform/linux/window/XcbConnection.h"

namespace quillmere {

void XcbSelectionWatch::start(XcbConnection &connection, xcb_window_t window, xcb_atom_t selection)
{
    const auto *xfixes = xcb_get_extension_data(connection.raw(), &xcb_xfixes_id);
    if (!xfixes || !xfixes->present)
        return;
    firstEvent_ = xfixes->first_event;
    selection_ = selection;
    // The extension answers nobody who has not named a version.
    connection.await<xcb_xfixes_query_version_reply_t>(
        owner_, xcb_xfixes_query_version(connection.raw(), 2, 0), [](const auto *) {});
    xcb_xfixes_select_selection_input(connection.raw(), window, selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

const xcb_xfixes_selection_notify_event_t *
XcbSelectionWatch::change(const xcb_generic_event_t &event) const
{
    const int type = event.response_type & 0x7f;
    if (!firstEvent_ || type != *firstEvent_ + XCB_XFIXES_SELECTION_NOTIFY)
        return nullptr;
    const auto &change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    return change.selection == selection_ ? &change : nullptr;
}

} // namespace quillmere
