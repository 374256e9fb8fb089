#pragma once

#include "views/PaintedItem.h"

#include <QImage>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// An image with rounded corners, cropped to fill the item.
class PictureItem : public PaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Picture)
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    using PaintedItem::PaintedItem;

    QImage image() const { return image_; }
    void setImage(const QImage &image);
    double radius() const { return radius_; }
    void setRadius(double radius);

Q_SIGNALS:
    void imageChanged();
    void radiusChanged();

protected:
    Drawing drawing() const override;

private:
    QImage image_;
    double radius_ = 0;
    mutable QImage fitted_; ///< at the pixels last shown
};

} // namespace quillmere
