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
        double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged)

public:
    using PaintedItem::PaintedItem;

    double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius);

Q_SIGNALS:
    void cornerRadiusChanged();

protected:
    Drawing drawing() const override;

private:
    double cornerRadius_ = 0;
};

} // namespace quillmere
