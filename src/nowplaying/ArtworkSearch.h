#pragma once

#include "nowplaying/ArtworkLookup.h"

#include <memory>
#include <vector>

namespace quillmere {

/// Where artwork can be looked up, in the order in which it is tried.
enum class ArtworkSource { Store, Spotify, Browser, Video };

/// The sources that may know the track; empty: there is none to ask.
std::vector<ArtworkSource> artworkSources(const ArtworkRequest &request);

/// Looks for the artwork of one track, at one source after the other until one has it.
class ArtworkSearch : public ArtworkLookup
{
public:
    explicit ArtworkSearch(const ArtworkTools &tools)
        : tools_(tools)
    {
    }

private:
    void begin(const ArtworkRequest &request) override;
    void next();

    ArtworkTools tools_;
    ArtworkRequest request_;
    std::vector<ArtworkSource> sources_;
    std::size_t asked_ = 0;
    ArtworkFinding finding_;
    std::vector<std::unique_ptr<ArtworkLookup>> lookups_; ///< one ends while the next one begins
};

} // namespace quillmere
