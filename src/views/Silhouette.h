#pragma once

#include "views/PaintedItem.h"

#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The black body of the island with its ears and the soft shadow below it. The item's own
/// rectangle is the island's frame; ears and shadow reach beyond it.
class Silhouette : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        double surfaceAlpha READ surfaceAlpha WRITE setSurfaceAlpha NOTIFY surfaceAlphaChanged)
    Q_PROPERTY(
        double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged)

public:
    using PaintedItem::PaintedItem;

    double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius);
    double surfaceAlpha() const { return surfaceAlpha_; }
    void setSurfaceAlpha(double alpha); ///< 0..1; below 1 the body is glass with a hairline edge

Q_SIGNALS:
    void cornerRadiusChanged();
    void surfaceAlphaChanged();

protected:
    Drawing drawing() const override;

private:
    double cornerRadius_ = 0;
    double surfaceAlpha_ = 1;
};

} // namespace quillmere
