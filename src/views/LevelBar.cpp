#include "views/LevelBar.h"

#include "views/SoftRect.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

const QColor trackColor(255, 255, 255, 46); // 18 %
constexpr double glowSigma = 4.5;
constexpr int glowAlpha = 190;
constexpr double thinning = 0.03; ///< of its height, for each unit the bar stretches
constexpr double mostThinning = 0.2;

constexpr double pushingDistance = 0.1;

struct Bar {
    QRectF track;
    QRectF filled;
    QBrush brush;
    QColor glow; ///< invalid = none
};

/// The bar gives way only once its filled part pushes against the end in question.
double pushed(double bump, double level)
{
    const double distance = bump > 0 ? 1 - level : level;
    return bump * std::clamp(1 - distance / pushingDistance, 0.0, 1.0);
}

QRectF stretched(QSizeF size, double bump)
{
    const double thin = size.height() * std::min(mostThinning, thinning * std::abs(bump)) / 2;
    QRectF track(0, thin, size.width(), size.height() - 2 * thin);
    if (bump > 0)
        track.setRight(track.right() + bump);
    else
        track.setLeft(track.left() + bump);
    return track;
}

QPainterPath pill(const QRectF &rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    return path;
}

/// The filled part keeps its round end; shorter than it is high, it comes out from under the
/// track's own end.
QPainterPath filledPath(const Bar &bar)
{
    if (bar.filled.width() >= bar.filled.height())
        return pill(bar.filled);
    QRectF whole = bar.filled;
    whole.setLeft(whole.right() - whole.height());
    return pill(whole).intersected(pill(bar.track));
}

QBrush brush(const QList<QColor> &colors, const QRectF &over)
{
    if (colors.size() == 1)
        return colors.first();
    QLinearGradient gradient(over.topLeft(), over.topRight());
    for (qsizetype i = 0; i < colors.size(); ++i)
        gradient.setColorAt(static_cast<double>(i) / static_cast<double>(colors.size() - 1),
                            colors.at(i));
    return gradient;
}

void paintGlow(QPainter &painter, const Bar &bar)
{
    paintInDevicePixels(painter, [&](const QTransform &toDevice) {
        const SoftRect halo{.rect = toDevice.mapRect(bar.filled),
                            .sigma = glowSigma * deviceScale(painter)};
        const QRect area = halo.extent().toAlignedRect();
        painter.drawImage(area.topLeft(), render(halo, bar.glow, area));
    });
}

void paintBar(QPainter &painter, const Bar &bar)
{
    if (bar.glow.isValid() && bar.filled.width() > 0)
        paintGlow(painter, bar);
    painter.fillPath(pill(bar.track), trackColor);
    if (bar.filled.width() > 0)
        painter.fillPath(filledPath(bar), bar.brush);
}

} // namespace

template <class T>
void LevelBar::change(T &field, const T &value, void (LevelBar::*changed)())
{
    if (field == value)
        return;
    field = value;
    update();
    Q_EMIT(this->*changed)();
}

void LevelBar::setLevel(double level)
{
    change(level_, std::isfinite(level) ? std::clamp(level, 0.0, 1.0) : 0.0,
           &LevelBar::levelChanged);
}

void LevelBar::setBump(double units)
{
    change(bump_, units, &LevelBar::bumpChanged);
}

void LevelBar::setColors(const QList<QColor> &colors)
{
    if (!colors.isEmpty())
        change(colors_, colors, &LevelBar::colorsChanged);
}

void LevelBar::setColorsFollowTrack(bool follow)
{
    change(colorsFollowTrack_, follow, &LevelBar::colorsFollowTrackChanged);
}

void LevelBar::setGlow(bool glow)
{
    change(glow_, glow, &LevelBar::glowChanged);
}

void LevelBar::setMirrored(bool mirrored)
{
    change(mirrored_, mirrored, &LevelBar::mirroredChanged);
}

Drawing LevelBar::drawing() const
{
    if (width() <= 0 || height() <= 0)
        return {};
    Bar bar;
    bar.track = stretched(size(), pushed(bump_, level_));
    bar.filled = bar.track;
    bar.filled.setWidth(bar.track.width() * level_);
    bar.brush = brush(colors_, colorsFollowTrack_ ? bar.track : bar.filled);
    if (glow_) {
        bar.glow = colors_.last();
        bar.glow.setAlpha(glowAlpha);
    }

    const auto paint = [bar, mirrored = mirrored_, width = width()](QPainter &painter) {
        if (mirrored)
            painter.setTransform(QTransform(-1, 0, 0, 1, width, 0) * painter.transform());
        paintBar(painter, bar);
    };
    const double reach = (glow_ ? 3 * glowSigma : 1) + std::abs(bump_);
    return {QRectF(QPointF(), size()).adjusted(-reach, -reach, reach, reach), paint};
}

} // namespace quillmere
