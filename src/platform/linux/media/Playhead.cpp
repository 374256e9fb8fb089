#include "platform/linux/media/Playhead.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double roundingError = 2; // s, that a position may be beyond either end of the track
constexpr double farthest = 1e7;    // s, of a track without an end
constexpr int correction = 1;       // growth of a length that was but estimated
constexpr Duration growthPause = std::chrono::seconds(10);
constexpr double withinSecond = 0.999;

bool isPlausible(double told, std::optional<double> duration)
{
    return told >= -roundingError && told <= duration.value_or(farthest) + roundingError;
}

} // namespace

ToldLength toldAgain(ToldLength before, std::optional<double> length, Instant now)
{
    if (length && before.length && *length > *before.length) {
        ++before.growths;
        before.grew = now;
    }
    before.length = length;
    return before;
}

std::optional<double> trustedLength(const ToldLength &told, Instant now)
{
    const bool isGrowing = told.growths > correction && now - told.grew < growthPause;
    return isGrowing ? std::nullopt : told.length;
}

double positionAt(const Playhead &head, Instant now, std::optional<double> duration)
{
    const double passed = std::max(toSeconds(now - head.at), 0.0);
    return std::clamp(head.position + passed * head.rate, 0.0, duration.value_or(farthest));
}

Playhead jumped(Playhead head, double position, Instant now)
{
    head.position = position;
    head.at = now;
    return head;
}

Playhead atRate(const Playhead &head, double rate, Instant now, std::optional<double> duration)
{
    Playhead next = jumped(head, positionAt(head, now, duration), now);
    next.rate = rate;
    return next;
}

Playhead heard(Playhead head, std::optional<double> told, Instant now,
               std::optional<double> duration)
{
    const double expected = positionAt(head, now, duration);
    if (!told || !isPlausible(*told, duration) || (*told == 0 && head.rate > 0))
        return jumped(head, expected, now);
    const double inTrack = std::clamp(*told, 0.0, duration.value_or(farthest));
    head.tellsFractions = head.tellsFractions || *told != std::floor(*told);
    if (head.tellsFractions)
        return jumped(head, inTrack, now);
    return jumped(head, std::clamp(expected, inTrack, inTrack + withinSecond), now);
}

} // namespace quillmere
