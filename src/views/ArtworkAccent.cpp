#include "views/ArtworkAccent.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmere {

namespace {

constexpr int sampleSide = 32;
constexpr std::size_t hueBins = 24;
constexpr double leastContrast = 4.5;
constexpr float leastSaturation = 0.55F;
constexpr float lightestVivid = 0.78F;

/// A picture is colourful when its most frequent hue covers this much of it, weighted by vividness.
constexpr double leastShare = 0.015;

struct HueBin {
    double weight = 0;
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// How much a colour catches the eye: its chroma, and no shadows.
double vividness(const QColor &color)
{
    const double high = std::max({color.redF(), color.greenF(), color.blueF()});
    const double low = std::min({color.redF(), color.greenF(), color.blueF()});
    const double chroma = high - low;
    return chroma * chroma * high * color.alphaF();
}

using Histogram = std::array<HueBin, hueBins>;

Histogram histogram(const QImage &sample)
{
    Histogram bins;
    for (int y = 0; y < sample.height(); ++y) {
        for (int x = 0; x < sample.width(); ++x) {
            const QColor color = sample.pixelColor(x, y);
            const double weight = vividness(color);
            if (weight <= 0)
                continue;
            const auto hue = static_cast<std::size_t>(std::max(0, color.hsvHue()));
            HueBin &bin = bins.at(hue * hueBins / 360 % hueBins);
            bin.weight += weight;
            bin.red += weight * color.redF();
            bin.green += weight * color.greenF();
            bin.blue += weight * color.blueF();
        }
    }
    return bins;
}

/// The weightiest hue with its neighbours, so that no bin's edge splits a colour in two.
HueBin dominant(const Histogram &bins)
{
    HueBin best;
    for (std::size_t i = 0; i < hueBins; ++i) {
        HueBin sum;
        for (const std::size_t j : {i + hueBins - 1, i, i + 1}) {
            const HueBin &bin = bins.at(j % hueBins);
            sum.weight += bin.weight;
            sum.red += bin.red;
            sum.green += bin.green;
            sum.blue += bin.blue;
        }
        if (sum.weight > best.weight)
            best = sum;
    }
    return best;
}

} // namespace

double contrastOnBlack(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
                             0.0722 * linear(color.blueF());
    return (luminance + 0.05) / 0.05;
}

QColor readableOnBlack(const QColor &color)
{
    constexpr float step = 0.02F;
    QColor lighter = color.toHsl();
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    lighter.getHslF(&hue, &saturation, &lightness);
    while (contrastOnBlack(lighter) < leastContrast && lightness < 1) {
        lightness = std::min(1.0F, lightness + step);
        lighter.setHslF(std::max(0.0F, hue), saturation, lightness);
    }
    return lighter.toRgb();
}

QColor artworkAccent(const QImage &picture)
{
    static const QColor grey(0xd8, 0xd8, 0xdc);
    if (picture.isNull())
        return grey;
    // In two steps: only the second one, over few pixels, has to average.
    const QImage sample =
        picture.scaled(4 * sampleSide, 4 * sampleSide)
            .scaled(sampleSide, sampleSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const HueBin best = dominant(histogram(sample));
    if (best.weight < leastShare * sampleSide * sampleSide)
        return grey;

    const auto part = [&](double sum) { return static_cast<float>(sum / best.weight); };
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    QColor::fromRgbF(part(best.red), part(best.green), part(best.blue))
        .getHslF(&hue, &saturation, &lightness);
    return readableOnBlack(QColor::fromHslF(std::max(0.0F, hue),
                                            std::max(leastSaturation, saturation),
                                            std::min(lightestVivid, lightness)));
}

} // namespace quillmere
