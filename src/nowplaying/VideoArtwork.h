#pragma once

#include "nowplaying/PictureDownload.h"

namespace quillmere {

/// The thumbnail of a video: the large one, or the small one where there is no large one.
class VideoArtwork : public ArtworkLookup
{
public:
    explicit VideoArtwork(const ArtworkTools &tools)
        : download_(tools)
    {
    }

private:
    void begin(const ArtworkRequest &request) override;
    void downloadSmall();

    QString videoID_;
    PictureDownload download_;
};

} // namespace quillmere
