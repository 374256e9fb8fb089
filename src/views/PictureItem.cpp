#include "views/PictureItem.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

namespace quillmere {

namespace {

QImage cropped(const QImage &image, QSize size)
{
    const QImage scaled =
        image.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2);
    return scaled.copy(QRect(corner, size)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

void PictureItem::setImage(const QImage &image)
{
    if (image.cacheKey() == image_.cacheKey())
        return;
    image_ = image;
    fitted_ = {};
    update();
    Q_EMIT imageChanged();
}

void PictureItem::setRadius(double radius)
{
    if (radius == radius_)
        return;
    radius_ = radius;
    update();
    Q_EMIT radiusChanged();
}

Drawing PictureItem::drawing() const
{
    const QRectF box(QPointF(), size());
    if (image_.isNull() || box.isEmpty())
        return {};
    const QSize pixels = (size() * window()->effectiveDevicePixelRatio()).toSize();
    if (fitted_.size() != pixels)
        fitted_ = cropped(image_, pixels);

    const auto paint = [box, radius = radius_, image = fitted_](QPainter &painter) {
        QBrush brush(image);
        brush.setTransform(
            QTransform::fromScale(box.width() / image.width(), box.height() / image.height()));
        QPainterPath path;
        path.addRoundedRect(box, radius, radius);
        painter.fillPath(path, brush);
    };
    return {box, paint};
}

} // namespace quillmere
