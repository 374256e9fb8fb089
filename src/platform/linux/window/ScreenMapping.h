#pragma once

#include <QPoint>
#include <QRect>
#include <QRectF>

class QScreen;

namespace quillmere {

/// A screen in both of Qt's coordinate systems. They share the screens' top left corners; from
/// there on logical lengths are native ones divided by the scale.
struct ScreenMapping {
    QRect logical;
    double scale = 1;

    static ScreenMapping of(const QScreen &screen);

    QRect native() const;
    QPointF toLogical(QPoint native) const;
};

/// A native, global point in logical, global units; a point on no screen is left as it is.
QPointF toLogical(QPoint native);

/// Whether a frame that hangs from its top edge hangs in this screen. The right and the lower edge
/// belong to the neighbours.
bool carries(const QRect &screen, const QRectF &frame);

/// The screen that carries a frame which hangs from its top edge; null for none.
QScreen *screenAbove(const QRectF &frame);

} // namespace quillmere
