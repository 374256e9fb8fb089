#include "platform/linux/window/X11Atoms.h"

#include "platform/linux/window/XcbReply.h"

#include <array>
#include <string>
#include <utility>

namespace quillmere {

X11Atoms X11Atoms::intern(xcb_connection_t *connection, int screenNumber)
{
    const std::array<std::pair<std::string, xcb_atom_t X11Atoms::*>, 17> names{{
        {"_NET_ACTIVE_WINDOW", &X11Atoms::activeWindow},
        {"_NET_CLIENT_LIST", &X11Atoms::clientList},
        {"_NET_CLIENT_LIST_STACKING", &X11Atoms::clientListStacking},
        {"_NET_WM_STATE", &X11Atoms::windowState},
        {"_NET_WM_STATE_FULLSCREEN", &X11Atoms::fullscreen},
        {"_NET_WM_CM_S" + std::to_string(screenNumber), &X11Atoms::compositor},
        {"_NET_WM_WINDOW_TYPE", &X11Atoms::windowType},
        {"_NET_WM_WINDOW_TYPE_DOCK", &X11Atoms::dock},
        {"_COMPTON_SHADOW", &X11Atoms::comptonShadow},
        {"_GTK_FRAME_EXTENTS", &X11Atoms::frameExtents},
        {"_KDE_NET_WM_DESKTOP_FILE", &X11Atoms::desktopFile},
        {"_GTK_APPLICATION_ID", &X11Atoms::gtkApplication},
        {"XdndSelection", &X11Atoms::dragSelection},
        {"TARGETS", &X11Atoms::targets},
        {"text/uri-list", &X11Atoms::uriList},
        {"INCR", &X11Atoms::incremental},
        {"QUILLMERE_DRAG", &X11Atoms::dragContent},
    }};
    std::array<xcb_intern_atom_cookie_t, names.size()> cookies{};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto &name = names[i].first;
        cookies[i] = xcb_intern_atom(connection, false, static_cast<std::uint16_t>(name.size()),
                                     name.data());
    }
    X11Atoms atoms;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[i], nullptr));
        if (reply)
            atoms.*names[i].second = reply->atom;
    }
    return atoms;
}

} // namespace quillmere
