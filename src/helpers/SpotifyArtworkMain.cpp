// Prints the address of the current track's cover picture in Spotify, or nothing.

#include "helpers/SpotifyTrack.h"

int main()
{
    return quillmere::printSpotifyTrack("mpris:artUrl");
}
