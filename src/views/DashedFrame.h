#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A dashed outline with round corners: here is room for something.
class DashedFrame : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)

public:
    explicit DashedFrame(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    Drawing drawing() const override;

private:
    double radius_ = 0;
    QColor color_ = Qt::white;
};

} // namespace quillmere
