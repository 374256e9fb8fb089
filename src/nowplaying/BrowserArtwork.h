#pragma once

#include "nowplaying/VideoArtwork.h"

#include <QStringList>

namespace quillmere {

/// The thumbnail of the video that a browser shows: of its front tab, or of the tab with the
/// track's title.
class BrowserArtwork : public ArtworkLookup
{
public:
    explicit BrowserArtwork(const ArtworkTools &tools)
        : tools_(tools)
        , video_(tools)
    {
    }

private:
    void begin(const ArtworkRequest &request) override;
    void askNextFrontTab();
    void askAllTabs();
    void download(const QString &videoID, const QString &url);

    ArtworkTools tools_;
    ArtworkRequest request_;
    QStringList browsers_; ///< still to be asked
    Task script_;
    VideoArtwork video_;
};

} // namespace quillmere
