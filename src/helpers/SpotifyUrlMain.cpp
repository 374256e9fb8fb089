// Prints the address of the current track in Spotify, or nothing.

#include "helpers/SpotifyTrack.h"

int main()
{
    return quillmere::printSpotifyTrack("xesam:url");
}
