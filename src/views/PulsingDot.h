#pragma once

#include "views/AnimatedItem.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A dot in the middle of its item, with a halo that breathes while something is going on. The halo
/// reaches as far as the item does.
class PulsingDot : public AnimatedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(double diameter READ diameter WRITE setDiameter NOTIFY diameterChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(bool still READ isStill WRITE setStill NOTIFY stillChanged)

public:
    explicit PulsingDot(QQuickItem *parent = nullptr);

    QColor color() const { return color_; }
    void setColor(const QColor &color);
    double diameter() const { return diameter_; }
    void setDiameter(double diameter);
    bool isActive() const { return active_; }
    void setActive(bool active); ///< it has a halo
    bool isStill() const { return still_; }
    void setStill(bool still); ///< the halo stands still, for who wants no motion

Q_SIGNALS:
    void colorChanged();
    void diameterChanged();
    void activeChanged();
    void stillChanged();

protected:
    Drawing drawing() const override;
    void updateMotion() override;
    void advance(double seconds) override;

private:
    double breath() const;

    QColor color_{Qt::white};
    double diameter_ = 8;
    bool active_ = false;
    bool still_ = false;
    double phase_ = 0.25; ///< of a breath, in turns; where it starts the halo is half out
};

} // namespace quillmere
