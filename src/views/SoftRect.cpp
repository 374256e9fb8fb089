#include "views/SoftRect.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace quillmere {

namespace {

constexpr double reachInSigmas = 3;

using Curve = std::vector<float>;

/// How much of a blurred edge-to-edge span covers each pixel centre.
Curve spanCurve(double from, double to, double sigma, int first, int count)
{
    Curve curve(static_cast<std::size_t>(count));
    const double scale = 1 / (sigma * std::numbers::sqrt2);
    for (int i = 0; i < count; ++i) {
        const double at = first + i + 0.5;
        const double value = 0.5 * (std::erf((at - from) * scale) - std::erf((at - to) * scale));
        curve[static_cast<std::size_t>(i)] = static_cast<float>(value);
    }
    return curve;
}

void addBell(Curve &curve, double center, double sigma, int first, double weight)
{
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double distance = (first + static_cast<double>(i) + 0.5 - center) / sigma;
        curve[i] += static_cast<float>(weight * std::exp(-0.5 * distance * distance));
    }
}

/// What a rounded corner lacks of a square one is small beside the blur: one bell at its centroid.
struct MissingCorners {
    Curve across;
    Curve down;
};

MissingCorners missingCorners(const SoftRect &shape, QRect area)
{
    const double radius = shape.bottomRadius;
    const double missingArea = radius * radius * (1 - std::numbers::pi / 4);
    const double inset = radius * 0.2234; // centroid of a square corner less its quarter circle
    const double weight = missingArea / (2 * std::numbers::pi * shape.sigma * shape.sigma);

    MissingCorners corners{Curve(static_cast<std::size_t>(area.width())),
                           Curve(static_cast<std::size_t>(area.height()))};
    addBell(corners.across, shape.rect.left() + inset, shape.sigma, area.left(), weight);
    addBell(corners.across, shape.rect.right() - inset, shape.sigma, area.left(), weight);
    addBell(corners.down, shape.rect.bottom() - inset, shape.sigma, area.top(), 1);
    return corners;
}

// A wide blur has fewer shades than pixels; ordered rounding hides the steps between them.
constexpr std::array<std::array<float, 4>, 4> rounding{{{0.03F, 0.53F, 0.16F, 0.66F},
                                                        {0.78F, 0.28F, 0.91F, 0.41F},
                                                        {0.22F, 0.72F, 0.09F, 0.59F},
                                                        {0.97F, 0.47F, 0.84F, 0.34F}}};

std::array<QRgb, 256> shades(const QColor &color)
{
    std::array<QRgb, 256> table{};
    for (std::size_t alpha = 0; alpha < table.size(); ++alpha)
        table[alpha] =
            qPremultiply(qRgba(color.red(), color.green(), color.blue(), static_cast<int>(alpha)));
    return table;
}

} // namespace

QRectF SoftRect::extent() const
{
    const double reach = reachInSigmas * sigma;
    return rect.adjusted(-reach, -reach, reach, reach);
}

QImage render(const SoftRect &shape, const QColor &color, QRect area)
{
    if (area.isEmpty() || shape.rect.isEmpty())
        return {};
    const Curve across =
        spanCurve(shape.rect.left(), shape.rect.right(), shape.sigma, area.left(), area.width());
    const Curve down =
        spanCurve(shape.rect.top(), shape.rect.bottom(), shape.sigma, area.top(), area.height());
    const MissingCorners missing = missingCorners(shape, area);
    const auto shade = shades(color);
    const float strength = static_cast<float>(color.alphaF() * 255);

    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < area.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        const float rowSpan = strength * down[static_cast<std::size_t>(y)];
        const float rowMissing = strength * missing.down[static_cast<std::size_t>(y)];
        const auto &round = rounding[static_cast<std::size_t>(area.top() + y) & 3U];
        for (std::size_t x = 0; x < across.size(); ++x) {
            const float alpha = rowSpan * across[x] - rowMissing * missing.across[x] +
                                round[(static_cast<std::size_t>(area.left()) + x) & 3U];
            pixel[x] = shade[static_cast<unsigned>(alpha) & 255U];
        }
    }
    return image;
}

} // namespace quillmere
