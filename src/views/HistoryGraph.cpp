#include "views/HistoryGraph.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillmere {

namespace {

constexpr double lineWidth = 1.5;
constexpr int shadeAlpha = 70;
constexpr QColor baseColor(255, 255, 255, 26);

} // namespace

HistoryGraph::HistoryGraph(QQuickItem *parent)
    : PaintedItem(parent)
{
    connect(this, &HistoryGraph::changed, this, &QQuickItem::update);
}

Drawing HistoryGraph::drawing() const
{
    if (samples_.isEmpty() || length_ < 2)
        return {};
    const QRectF bounds(QPointF(), size());
    const double step = bounds.width() / (length_ - 1);
    const double height = bounds.height() - lineWidth;
    QPolygonF line;
    for (qsizetype i = 0; i < samples_.size(); ++i)
        line.append({bounds.right() - step * double(samples_.size() - 1 - i),
                     lineWidth / 2 + height * (1 - std::clamp(samples_.at(i), 0.0, 1.0))});
    if (line.size() == 1) // the first sample is a dash of its own
        line.prepend(line.first() - QPointF(step, 0));

    const auto paint = [bounds, line, color = color_](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        QPolygonF area = line;
        area << QPointF(line.last().x(), bounds.bottom())
             << QPointF(line.first().x(), bounds.bottom());
        QColor shade = color;
        QLinearGradient gradient(bounds.topLeft(), bounds.bottomLeft());
        shade.setAlpha(shadeAlpha);
        gradient.setColorAt(0, shade);
        shade.setAlpha(0);
        gradient.setColorAt(1, shade);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawPolygon(area);
        painter.fillRect(QRectF(bounds.bottomLeft() - QPointF(0, 1), QSizeF(bounds.width(), 1)),
                         baseColor);
        painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(line);
    };
    return {bounds.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth), paint};
}

} // namespace quillmere
