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
constexpr double hairlineAlpha = 0.12; // of white

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

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

/// What white of this alpha laid on black of that alpha looks like.
QColor whiteOnBlack(double white, double black)
{
    const double alpha = white + black * (1 - white);
    const auto shade = static_cast<float>(white / alpha);
    return QColor::fromRgbF(shade, shade, shade, static_cast<float>(alpha));
}

/// Replaces what is there: glass must not show the shadow below it. Replacing is also what the
/// painter does at once; to blend, it wakes other threads, which costs more than the fill.
void replace(QPainter &painter, const QPainterPath &path, const QColor &color)
{
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const double opacity = painter.opacity();
    painter.setOpacity(1);
    painter.fillPath(path, withAlpha(color, color.alphaF() * opacity));
    painter.restore();
}

/// The body without its outermost unit. An ear's edge faces outwards below, not beside it.
QPainterPath insideOfHairline(const Body &body)
{
    return silhouettePath(body.frame - QSizeF(2, 0), body.cornerRadius - 1).translated(1, -1);
}

void paintBody(QPainter &painter, const Body &body, double alpha)
{
    painter.translate(-earRadius, 0);
    const QColor surface = withAlpha(bodyColor, alpha);
    const QPainterPath path = silhouettePath(body.frame, body.cornerRadius);
    if (alpha >= 1) {
        replace(painter, path, surface);
        return;
    }
    replace(painter, path, whiteOnBlack(hairlineAlpha, alpha));
    painter.setClipRect(path.boundingRect().adjusted(0, 1, 0, 0), Qt::IntersectClip);
    replace(painter, insideOfHairline(body), surface);
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
        paintShadow(painter, body);
        paintBody(painter, body, alpha);
    };
    return {bounds, paint};
}

} // namespace quillmere
