#include "views/PulsingDot.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

constexpr std::chrono::milliseconds frameInterval{80};
constexpr double breathDuration = 1.6; // seconds
constexpr double faintest = 0.25;      // of the halo, where it meets the dot
constexpr double strongest = 0.75;
constexpr double smallest = 0.6; // of the room around the dot
constexpr double mean = 0.5;

struct Look {
    QPointF center;
    double radius;
    QColor color;
    double haloRadius; ///< 0 = none
    double haloStrength;
};

QColor faded(QColor color, double share)
{
    color.setAlphaF(color.alphaF() * static_cast<float>(share));
    return color;
}

void paintLook(QPainter &painter, const Look &look)
{
    painter.setPen(Qt::NoPen);
    if (look.haloRadius > 0) {
        const double edge = std::clamp(look.radius / look.haloRadius, 0.0, 1.0);
        QRadialGradient halo(look.center, look.haloRadius);
        halo.setColorAt(edge * 0.9, faded(look.color, look.haloStrength));
        halo.setColorAt(edge + (1 - edge) * 0.45, faded(look.color, look.haloStrength * 0.3));
        halo.setColorAt(1, faded(look.color, 0));
        painter.setBrush(halo);
        painter.drawEllipse(look.center, look.haloRadius, look.haloRadius);
    }
    painter.setBrush(look.color);
    painter.drawEllipse(look.center, look.radius, look.radius);
}

} // namespace

PulsingDot::PulsingDot(QQuickItem *parent)
    : AnimatedItem(frameInterval, parent)
{
}

void PulsingDot::setColor(const QColor &color)
{
    if (color == color_)
        return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void PulsingDot::setDiameter(double diameter)
{
    if (diameter == diameter_)
        return;
    diameter_ = diameter;
    update();
    Q_EMIT diameterChanged();
}

void PulsingDot::setActive(bool active)
{
    if (active == active_)
        return;
    active_ = active;
    updateMotion();
    Q_EMIT activeChanged();
}

void PulsingDot::setStill(bool still)
{
    if (still == still_)
        return;
    still_ = still;
    updateMotion();
    Q_EMIT stillChanged();
}

void PulsingDot::updateMotion()
{
    setMoving(active_ && !still_ && canBeSeen());
    update();
}

void PulsingDot::advance(double seconds)
{
    phase_ = std::fmod(phase_ + seconds / breathDuration, 1);
}

/// 0 = drawn in, 1 = all out.
double PulsingDot::breath() const
{
    return still_ ? mean : mean - mean * std::cos(phase_ * 2 * std::numbers::pi);
}

Drawing PulsingDot::drawing() const
{
    const QRectF box(QPointF(), size());
    if (box.isEmpty())
        return {};
    const double radius = diameter_ / 2;
    const double room = std::max(0.0, std::min(box.width(), box.height()) / 2 - radius);
    const double breath = this->breath();
    const Look look{
        .center = box.center(),
        .radius = radius,
        .color = color_,
        .haloRadius = active_ ? radius + room * (smallest + (1 - smallest) * breath) : 0,
        .haloStrength = faintest + (strongest - faintest) * breath,
    };
    return {box.adjusted(-1, -1, 1, 1), [look](QPainter &painter) { paintLook(painter, look); }};
}

} // namespace quillmere
