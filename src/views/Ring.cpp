#include "views/Ring.h"

#include <QPainter>

#include <algorithm>

namespace quillmere {

namespace {

constexpr QColor trackColor(255, 255, 255, 31);
constexpr int degree = 16; // as QPainter counts
constexpr int top = 90 * degree;

} // namespace

Ring::Ring(QQuickItem *parent)
    : PaintedItem(parent)
{
    connect(this, &Ring::changed, this, &QQuickItem::update);
}

Drawing Ring::drawing() const
{
    const QRectF bounds(QPointF(), size());
    const double inset = thickness_ / 2;
    const QRectF circle = bounds.adjusted(inset, inset, -inset, -inset);
    const int angle = static_cast<int>(-360 * degree * std::clamp(fraction_, 0.0, 1.0));
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
