#include "views/Ring.h"

#include <QPainter>

#include <algorithm>

namespace quillmere {

namespace {

constexpr QColor trackColor(255, 255, 255, 31);
constexpr int degree = 16; // as QPainter counts
constexpr int top = 90 * degree;
constexpr int step = 2; // an eighth of a degree is a quarter of a pixel at 2x, and nobody sees less

constexpr int steps = 360 * degree / step;

int shownAngle(double fraction)
{
    return -step * static_cast<int>(steps * std::clamp(fraction, 0.0, 1.0));
}

} // namespace

Ring::Ring(QQuickItem *parent)
    : PaintedItem(parent)
{
    connect(this, &Ring::changed, this, &QQuickItem::update);
}

void Ring::setFraction(double fraction)
{
    if (fraction == fraction_)
        return;
    const int before = shownAngle(fraction_);
    fraction_ = fraction;
    Q_EMIT fractionChanged();
    if (shownAngle(fraction) != before)
        update();
}

Drawing Ring::drawing() const
{
    const QRectF bounds(QPointF(), size());
    const double inset = thickness_ / 2;
    const QRectF circle = bounds.adjusted(inset, inset, -inset, -inset);
    const int angle = shownAngle(fraction_);
    const auto paint = [circle, angle, color = color_, thickness = thickness_](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(trackColor, thickness));
        painter.drawEllipse(circle);
        if (angle == 0)
            return;
        painter.setPen(QPen(color, thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(circle, top, angle);
    };
    return {bounds, paint};
}

} // namespace quillmere
