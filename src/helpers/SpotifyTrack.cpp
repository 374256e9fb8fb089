#include "helpers/SpotifyTrack.h"

#include "helpers/SessionBus.h"
#include "helpers/Tabs.h"

#include <cstdio>

namespace quillmere {

namespace {

/// Some versions name a host that has no pictures.
std::string withLivingHost(const std::string &address)
{
    constexpr std::string_view dead("https://open.spotify.com/image/");
    return address.starts_with(dead) ? "https://i.scdn.co/image/" + address.substr(dead.size())
                                     : address;
}

} // namespace

std::string spotifyTrack(const std::string &key)
{
    const SessionBus bus;
    for (const auto &name : bus.namesLike("org.mpris.MediaPlayer2.spotify")) {
        const auto answer =
            bus.call(name, {"/org/mpris/MediaPlayer2", "org.freedesktop.DBus.Properties", "Get"},
                     {"org.mpris.MediaPlayer2.Player", "Metadata"});
        const auto metadata = BusValues(answer.get()).inside();
        const std::string address = plainAddress(metadata.entry(key).textInVariant());
        if (!address.empty())
            return withLivingHost(address);
    }
    return {};
}

int printSpotifyTrack(const std::string &key)
{
    const std::string text = spotifyTrack(key);
    if (!text.empty())
        std::puts(text.c_str());
    return 0;
}

} // namespace quillmere
