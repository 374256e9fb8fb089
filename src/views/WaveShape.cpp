#include "views/WaveShape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

constexpr std::array shape{0.36, 0.82, 0.55, 1.0, 0.45, 0.68, 0.36, 0.9, 0.59};

double wave(double hertz, double seconds, double phase)
{
    return std::sin(2 * std::numbers::pi * hertz * seconds + phase);
}

} // namespace

double stillHeight(int bar)
{
    return shape.at(static_cast<std::size_t>(std::abs(bar)) % shape.size());
}

double restingHeight(int bar)
{
    return 0.16 + 0.12 * stillHeight(bar);
}

double playingHeight(int bar, double seconds)
{
    const double phase = 2.4 * bar; // about the golden angle: neighbours never agree
    const double beat = wave(1.15 + 0.13 * (bar % 4), seconds, phase);
    const double flutter = wave(2.35 + 0.21 * (bar % 3), seconds, 1.7 * phase);
    const double swell = wave(0.31, seconds, 0.5 * phase);
    const double loudness = 0.56 + 0.34 * beat + 0.2 * flutter + 0.12 * swell;
    return std::clamp(0.18 + 0.82 * loudness * (0.78 + 0.32 * stillHeight(bar)), 0.18, 1.0);
}

} // namespace quillmere
