#include "views/Waveform.h"

#include "views/WaveShape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr int frameInterval = 40;    // ms
constexpr double longestFrame = 0.1; // seconds; after a pause it goes on where it stopped
constexpr double settling = 0.11;    // seconds in which the way to rest is cut to a third
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
    : PaintedItem(parent)
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

bool Waveform::canBeSeen() const
{
    return isVisible() && window() && window()->isVisible() && window()->isExposed();
}

/// Unseen or still, it is at once where it would come to be.
void Waveform::updateMotion()
{
    const double target = playing_ ? 1 : 0;
    if (!still_ && canBeSeen() && (playing_ || energy_ > 0)) {
        if (frameTimer_.isActive())
            return;
        sinceFrame_.start();
        frameTimer_.start(frameInterval, Qt::PreciseTimer, this);
        return;
    }
    frameTimer_.stop();
    energy_ = target;
    update();
}

void Waveform::advance()
{
    const double passed = std::min(longestFrame, static_cast<double>(sinceFrame_.restart()) / 1000);
    const double target = playing_ ? 1 : 0;
    energy_ = target + (energy_ - target) * std::exp(-passed / settling);
    if (std::abs(energy_ - target) < settled)
        energy_ = target;
    seconds_ += passed;
    if (energy_ == 0)
        frameTimer_.stop();
    update();
}

void Waveform::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == frameTimer_.timerId())
        advance();
    else
        PaintedItem::timerEvent(event);
}

void Waveform::itemChange(ItemChange change, const ItemChangeData &data)
{
    PaintedItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        if (watched_)
            watched_->removeEventFilter(this);
        watched_ = data.window;
        if (watched_)
            watched_->installEventFilter(this);
    }
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        resizeBars();
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        updateMotion();
}

/// The window may be hidden, covered or on a screen that is off, which no item hears of.
bool Waveform::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    const bool handled = PaintedItem::eventFilter(watched, event);
    if (type == QEvent::Expose || type == QEvent::Show || type == QEvent::Hide)
        updateMotion();
    return handled;
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
