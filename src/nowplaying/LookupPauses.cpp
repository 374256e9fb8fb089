#include "nowplaying/LookupPauses.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr Duration shortest = std::chrono::seconds(2);
constexpr Duration longest = std::chrono::minutes(10);
constexpr qsizetype mostTitles = 64; // to forget some only means to ask sooner

} // namespace

bool LookupPauses::mayAsk(const QString &title, Instant now) const
{
    const auto found = pauses_.constFind(title);
    return found == pauses_.cend() || now >= found->end;
}

void LookupPauses::failed(const QString &title, Instant now)
{
    if (pauses_.size() >= mostTitles && !pauses_.contains(title))
        pauses_.clear();
    Pause &pause = pauses_[title];
    pause.length = std::clamp(2 * pause.length, shortest, longest);
    pause.end = now + pause.length;
}

} // namespace quillmere
