#pragma once

#include "nowplaying/PictureDownload.h"

namespace quillmere {

/// Artwork of an album of the music store, by the album's identifier.
class StoreArtwork : public ArtworkLookup
{
public:
    explicit StoreArtwork(const ArtworkTools &tools)
        : tools_(tools)
        , download_(tools)
    {
    }

private:
    void begin(const ArtworkRequest &request) override;
    void answered(const QByteArray &reply, bool isReplacedEndpoint);
    void failed();

    ArtworkTools tools_;
    QString albumID_;
    Task request_;
    PictureDownload download_;
};

} // namespace quillmere
