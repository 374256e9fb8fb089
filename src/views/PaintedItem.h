#pragma once

#include <QQuickItem>

#include <functional>

class QPainter;

namespace quillmere {

/// What an item looks like: values captured on the main thread, painted when the scene is.
struct Drawing {
    QRectF bounds;                         ///< in item coordinates; may reach beyond the item
    std::function<void(QPainter &)> paint; ///< in item coordinates; empty = nothing
};

/// An item that paints straight into the window, with no buffer of its own and at sub-pixel
/// precision. For the software scene graph only.
class PaintedItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit PaintedItem(QQuickItem *parent = nullptr);

protected:
    virtual Drawing drawing() const = 0;

    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
};

/// The painter's device pixels that one logical unit spans.
double deviceScale(const QPainter &painter);

/// Calls `paint` with the painter's coordinates set to whole device pixels. `toDevice` maps item
/// coordinates to them.
void paintInDevicePixels(QPainter &painter,
                         const std::function<void(const QTransform &toDevice)> &paint);

} // namespace quillmere
