#include "views/Waveform.h"

#include "views/WaveShape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr std::chrono::milliseconds frameInterval{40};
constexpr double settling = 0.11; // seconds in which the way to rest is cut to a third
constexpr double settled = 0.01;

struct Bars {
    QList<double> heights{}; ///< shares of the box
    QRectF box;
    double width;
    double gap;
    QList<QColor> colors;
};

/// Whole device pixels across, so that every bar is as crisp as its neighbour.
struct Steps {
    double width;
    double pitch;
};

Steps stepsAt(double scale, double width, double gap)
{
    const double whole = std::max(1.0, std::round(width * scale));
    return {whole, std::max(whole + 1, std::round((width + gap) * scale))};
}

QBrush brush(const QList<QColor> &colors, const QRectF &over)
{
    if (colors.size() == 1)
        return colors.first();
    QLinearGradient gradient(over.topLeft(), over.bottomLeft());
    for (qsizetype i = 0; i < colors.size(); ++i)
        gradient.setColorAt(static_cast<double>(i) / static_cast<double>(colors.size() - 1),
                            colors.at(i));
    return gradient;
}

void paintBars(QPainter &painter, const Bars &bars)
{
    paintInDevicePixels(painter, [&](const QTransform &toDevice) {
        const QRectF box = toDevice.mapRect(bars.box);
        const auto [width, pitch] = stepsAt(deviceScale(painter), bars.width, bars.gap);
        const double whole = pitch * static_cast<double>(bars.heights.size() - 1) + width;
        double x = std::round(box.center().x() - whole / 2);
        for (const double share : bars.heights) {
            const double height = std::max(width, share * box.height());
            const QRectF bar(x, box.center().y() - height / 2, width, height);
            QPainterPath path;
            path.addRoundedRect(bar, width / 2, width / 2);
            painter.fillPath(path, brush(bars.colors, bar));
            x += pitch;
        }
    });
}

} // namespace

Waveform::Waveform(QQuickItem *parent)
    : AnimatedItem(frameInterval, parent)
{
    resizeBars();
}

void Waveform::setPlaying(bool playing)
{
    if (playing == playing_)
        return;
    playing_ = playing;
    updateMotion();
    Q_EMIT playingChanged();
}

void Waveform::setStill(bool still)
{
    if (still == still_)
        return;
    still_ = still;
    updateMotion();
    Q_EMIT stillChanged();
}

void Waveform::setColors(const QList<QColor> &colors)
{
    if (colors.isEmpty() || colors == colors_)
        return;
    colors_ = colors;
    update();
    Q_EMIT colorsChanged();
}

void Waveform::setBars(int bars)
{
    bars_ = std::max(1, bars);
    resizeBars();
}

void Waveform::setBarWidth(double width)
{
    barWidth_ = width;
    resizeBars();
}

void Waveform::setGap(double gap)
{
    gap_ = gap;
    resizeBars();
}

/// The item is as wide as the bars are drawn.
void Waveform::resizeBars()
{
    const double scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    const Steps steps = stepsAt(scale, barWidth_, gap_);
    setImplicitWidth((steps.pitch * (bars_ - 1) + steps.width) / scale);
    update();
    Q_EMIT barsChanged();
}

/// Unseen or still, it is at once where it would come to be.
void Waveform::updateMotion()
{
    setMoving(!still_ && canBeSeen() && (playing_ || energy_ > 0));
    if (isMoving())
        return;
    energy_ = playing_ ? 1 : 0;
    update();
}

void Waveform::advance(double seconds)
{
    const double target = playing_ ? 1 : 0;
    energy_ = target + (energy_ - target) * std::exp(-seconds / settling);
    if (std::abs(energy_ - target) < settled)
        energy_ = target;
    seconds_ += seconds;
    if (energy_ == 0)
        setMoving(false);
}

void Waveform::itemChange(ItemChange change, const ItemChangeData &data)
{
    AnimatedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        resizeBars();
}

double Waveform::height(int bar) const
{
    const double playing = still_ ? stillHeight(bar) : playingHeight(bar, seconds_);
    return restingHeight(bar) + energy_ * (playing - restingHeight(bar));
}

Drawing Waveform::drawing() const
{
    const QRectF box(QPointF(), size());
    if (box.isEmpty())
        return {};
    Bars bars{.heights = {}, .box = box, .width = barWidth_, .gap = gap_, .colors = colors_};
    for (int i = 0; i < bars_; ++i)
        bars.heights.append(height(i));
    return {box.adjusted(-1, 0, 1, 0), [bars](QPainter &painter) { paintBars(painter, bars); }};
}

} // namespace quillmere
