#include "nowplaying/ArtworkSearch.h"

#include "nowplaying/BrowserArtwork.h"
#include "nowplaying/Browsers.h"
#include "nowplaying/SpotifyArtwork.h"
#include "nowplaying/StoreArtwork.h"

namespace quillmere {

namespace {

std::unique_ptr<ArtworkLookup> makeLookup(ArtworkSource source, const ArtworkTools &tools)
{
    switch (source) {
    case ArtworkSource::Store:
        return std::make_unique<StoreArtwork>(tools);
    case ArtworkSource::Spotify:
        return std::make_unique<SpotifyArtwork>(tools);
    case ArtworkSource::Browser:
        return std::make_unique<BrowserArtwork>(tools);
    case ArtworkSource::Video:
        return std::make_unique<VideoArtwork>(tools);
    }
    Q_UNREACHABLE();
}

} // namespace

std::vector<ArtworkSource> artworkSources(const ArtworkRequest &request)
{
    std::vector<ArtworkSource> sources;
    if (!request.albumID.isEmpty())
        sources.push_back(ArtworkSource::Store);
    if (request.bundleID.contains(QLatin1StringView("spotify"), Qt::CaseInsensitive))
        sources.push_back(ArtworkSource::Spotify);
    if (!request.videoID.isEmpty())
        sources.push_back(ArtworkSource::Video);
    else if (isBrowser(request.bundleID))
        sources.push_back(ArtworkSource::Browser);
    return sources;
}

void ArtworkSearch::begin(const ArtworkRequest &request)
{
    request_ = request;
    sources_ = artworkSources(request);
    next();
}

void ArtworkSearch::next()
{
    if (asked_ == sources_.size())
        return finish(finding_);
    lookups_.push_back(makeLookup(sources_.at(asked_++), tools_));
    lookups_.back()->start(request_, [this](const ArtworkFinding &finding) {
        if (finding.contentURL)
            finding_.contentURL = finding.contentURL;
        if (!finding.artwork)
            return next();
        finding_.artwork = finding.artwork;
        finish(finding_);
    });
}

} // namespace quillmere
