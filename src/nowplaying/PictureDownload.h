#pragma once

#include "nowplaying/ArtworkLookup.h"
#include "platform/Owner.h"
#include "platform/Task.h"

#include <QUrl>

namespace quillmere {

/// Downloads pictures, one at a time, and decodes them in the background. Destroying it gives up.
class PictureDownload
{
public:
    using Done = std::function<void(const std::optional<QImage> &)>;

    explicit PictureDownload(const ArtworkTools &tools)
        : tools_(tools)
    {
    }

    /// `done` gets the picture, or nothing for whatever reason; not from within start(). It may
    /// start another one or destroy the download.
    void start(const QUrl &url, bool isReplacedEndpoint, Done done);

private:
    void decode(const QByteArray &data);
    void finish(const std::optional<QImage> &picture);

    ArtworkTools tools_;
    Task request_;
    Done done_;
    Owner owner_;
};

} // namespace quillmere
