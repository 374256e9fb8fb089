#pragma once

#include "nowplaying/PictureDownload.h"

namespace quillmere {

/// Artwork and web page of what Spotify plays, by asking Spotify.
class SpotifyArtwork : public ArtworkLookup
{
public:
    explicit SpotifyArtwork(const ArtworkTools &tools)
        : tools_(tools)
        , download_(tools)
    {
    }

private:
    void begin(const ArtworkRequest &request) override;
    void askForPage();
    void download();

    ArtworkTools tools_;
    Task artworkScript_;
    Task pageScript_;
    QString artworkUrl_;
    ArtworkFinding finding_;
    PictureDownload download_;
};

} // namespace quillmere
