#include "views/Silhouette.h"

#include "views/SilhouettePath.h"
#include "views/SoftRect.h"

#include <QPainter>

namespace quillmere {

namespace {

constexpr double shadowDrop = 6;
constexpr double shadowSigma = 18;
const QColor shadowColor(0, 0, 0, 71); // 28 %
const QColor bodyColor(Qt::black);

struct Body {
    QSizeF frame;
    double cornerRadius;
};

SoftRect shadowOf(const Body &body)
{
    return {.rect = QRectF(QPointF(0, shadowDrop), body.frame),
            .bottomRadius = body.cornerRadius,
            .sigma = shadowSigma};
}

/// The parts of the shadow that the body leaves visible: beside it and below it.
QList<QRect> visibleParts(const QRectF &extent, const QRectF &covered)
{
    const QRect outer = extent.toAlignedRect();
    const QRect inner(covered.topLeft().toPoint() + QPoint(1, 0),
                      covered.bottomRight().toPoint() - QPoint(2, 1));
    return {QRect(outer.topLeft(), QPoint(inner.left() - 1, inner.bottom())),
            QRect(QPoint(inner.right() + 1, outer.top()), QPoint(outer.right(), inner.bottom())),
            QRect(QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight())};
}

void paintShadow(QPainter &painter, const Body &body)
{
    // Asked before the coordinates change, while a clip is still in the item's own.
    const QRectF clip = painter.hasClipping() ? painter.clipBoundingRect() : QRectF();
    const SoftRect logical = shadowOf(body);
    const QRectF covered(0, 0, body.frame.width(),
                         std::max(0.0, body.frame.height() - body.cornerRadius));

    paintInDevicePixels(painter, [&](const QTransform &toDevice) {
        const double scale = toDevice.m11();
        const SoftRect device{.rect = toDevice.mapRect(logical.rect),
                              .bottomRadius = logical.bottomRadius * scale,
                              .sigma = logical.sigma * scale};
        // Nothing of the island is above the screen's edge.
        QRectF extent = toDevice.mapRect(logical.extent());
        extent.setTop(toDevice.map(QPointF()).y());
        const QRect needed =
            clip.isNull() ? extent.toAlignedRect() : toDevice.mapRect(clip).toAlignedRect();
        for (const QRect &part : visibleParts(extent, toDevice.mapRect(covered))) {
            const QRect area = part & needed;
            if (!area.isEmpty())
                painter.drawImage(area.topLeft(), render(device, shadowColor, area));
        }
    });
}

} // namespace

void Silhouette::setCornerRadius(double radius)
{
    if (radius == cornerRadius_)
        return;
    cornerRadius_ = radius;
    update();
    Q_EMIT cornerRadiusChanged();
}

Drawing Silhouette::drawing() const
{
    const Body body{size(), cornerRadius_};
    QRectF bounds = shadowOf(body).extent();
    bounds.setTop(0);
    const auto paint = [body](QPainter &painter) {
        paintShadow(painter, body);
        painter.translate(-earRadius, 0);
        painter.fillPath(silhouettePath(body.frame, body.cornerRadius), bodyColor);
    };
    return {bounds, paint};
}

} // namespace quillmere
