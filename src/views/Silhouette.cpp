#include "views/Silhouette.h"

#include "views/SilhouettePath.h"
#include "views/SoftRect.h"

#include <QPainter>
#include <QPainterPath>

namespace quillmere {

namespace {

constexpr double shadowDrop = 6;
constexpr double shadowSigma = 18;
const QColor shadowColor(0, 0, 0, 71); // 28 %
const QColor bodyColor(Qt::black);
const QColor hairlineColor(255, 255, 255, 31); // 12 %

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

/// Glass would show the shadow that lies below it.
void clipAwayBody(QPainter &painter, const Body &body)
{
    QPainterPath around;
    around.addRect(shadowOf(body).extent());
    around.addPath(silhouettePath(body.frame, body.cornerRadius).translated(-earRadius, 0));
    painter.setClipPath(around, Qt::IntersectClip);
}

void paintBody(QPainter &painter, const Body &body, double alpha)
{
    painter.translate(-earRadius, 0);
    const QPainterPath path = silhouettePath(body.frame, body.cornerRadius);
    QColor color = bodyColor;
    color.setAlphaF(static_cast<float>(alpha));
    painter.fillPath(path, color);
    if (alpha >= 1)
        return;
    painter.setClipPath(path, Qt::IntersectClip); // of a stroke, the inner half
    painter.strokePath(path, QPen(hairlineColor, 2));
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

void Silhouette::setSurfaceAlpha(double alpha)
{
    if (alpha == surfaceAlpha_)
        return;
    surfaceAlpha_ = alpha;
    update();
    Q_EMIT surfaceAlphaChanged();
}

Drawing Silhouette::drawing() const
{
    const Body body{size(), cornerRadius_};
    QRectF bounds = shadowOf(body).extent();
    bounds.setTop(0);
    const auto paint = [body, alpha = surfaceAlpha_](QPainter &painter) {
        painter.save();
        if (alpha < 1)
            clipAwayBody(painter, body);
        paintShadow(painter, body);
        painter.restore();
        paintBody(painter, body, alpha);
    };
    return {bounds, paint};
}

} // namespace quillmere
