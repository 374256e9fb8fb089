#include "nowplaying/VideoArtwork.h"

#include "nowplaying/ArtworkAddresses.h"
#include "nowplaying/MediaLog.h"
#include "platform/Endpoints.h"

namespace quillmere {

namespace {

/// What the server sends for a missing picture is a grey one of this width.
constexpr int placeholderWidth = 120; // pixels

bool isThumbnail(const std::optional<QImage> &picture)
{
    return picture && picture->width() > placeholderWidth;
}

} // namespace

void VideoArtwork::begin(const ArtworkRequest &request)
{
    videoID_ = request.videoID;
    qCDebug(mediaLog, "[Quillmere] YouTube thumbnail for videoID=%s", qUtf8Printable(videoID_));
    const Endpoint server = endpoint(EndpointName::VideoThumbnail);
    download_.start(videoThumbnailUrl(server.url, videoID_, Rendition::Large), server.isReplaced,
                    [this](const std::optional<QImage> &picture) {
                        if (!isThumbnail(picture))
                            return downloadSmall();
                        finish({.artwork = picture});
                    });
}

void VideoArtwork::downloadSmall()
{
    const Endpoint server = endpoint(EndpointName::VideoThumbnail);
    download_.start(videoThumbnailUrl(server.url, videoID_, Rendition::Small), server.isReplaced,
                    [this](const std::optional<QImage> &picture) {
                        finish({.artwork = isThumbnail(picture) ? picture : std::nullopt});
                    });
}

} // namespace quillmere
