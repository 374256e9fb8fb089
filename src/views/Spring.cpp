#include "views/Spring.h"

#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

/// x(t) = e^(-decay t) (inPhase cos(swing t) + sideways sin(swing t))
struct Swing {
    double decay;
    double swing;
    double inPhase;
    double sideways;
};

Swing swingOf(const Spring &spring, const SpringState &start)
{
    const double frequency = 2 * std::numbers::pi / spring.response;
    const double decay = frequency * spring.damping;
    const double swing = frequency * std::sqrt(1 - spring.damping * spring.damping);
    return {decay, swing, start.offset, (start.velocity + decay * start.offset) / swing};
}

} // namespace

SpringState springAt(const Spring &spring, const SpringState &start, double elapsed)
{
    const auto [decay, swing, inPhase, sideways] = swingOf(spring, start);
    const double fade = std::exp(-decay * elapsed);
    const double cosine = std::cos(swing * elapsed);
    const double sine = std::sin(swing * elapsed);
    return {fade * (inPhase * cosine + sideways * sine),
            fade * ((swing * sideways - decay * inPhase) * cosine -
                    (swing * inPhase + decay * sideways) * sine)};
}

double settlingTime(const Spring &spring, const SpringState &start, double tolerance)
{
    const auto [decay, swing, inPhase, sideways] = swingOf(spring, start);
    const double envelope = std::hypot(inPhase, sideways);
    return envelope <= tolerance ? 0 : std::log(envelope / tolerance) / decay;
}

} // namespace quillmere
