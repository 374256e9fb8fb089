#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A ring that is filled clockwise from the top.
class Ring : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY fractionChanged FINAL) // 0..1
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    Q_PROPERTY(double thickness MEMBER thickness_ NOTIFY changed FINAL)

public:
    explicit Ring(QQuickItem *parent = nullptr);

    double fraction() const { return fraction_; }
    void setFraction(double fraction);

Q_SIGNALS:
    void fractionChanged();
    void changed();

protected:
    Drawing drawing() const override;

private:
    double fraction_ = 0;
    QColor color_{Qt::white};
    double thickness_ = 7;
};

} // namespace quillmere
