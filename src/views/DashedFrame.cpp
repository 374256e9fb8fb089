#include "views/DashedFrame.h"

#include <QPainter>

namespace quillmere {

namespace {

constexpr double strokeWidth = 1.5;
constexpr double dash = 4; // in stroke widths, like the gap
constexpr double gap = 3;

} // namespace

DashedFrame::DashedFrame(QQuickItem *parent)
    : PaintedItem(parent)
{
    connect(this, &DashedFrame::changed, this, &QQuickItem::update);
}

Drawing DashedFrame::drawing() const
{
    const QRectF bounds(QPointF(), size());
    const auto paint = [bounds, radius = radius_, color = color_](QPainter &painter) {
        QPen pen(color, strokeWidth, Qt::CustomDashLine, Qt::RoundCap);
        pen.setDashPattern({dash, gap});
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        constexpr double inset = strokeWidth / 2;
        painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), radius, radius);
    };
    return {bounds, paint};
}

} // namespace quillmere
