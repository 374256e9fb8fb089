#include "views/PaintedItem.h"

#include <QPainter>
#include <QPointer>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace quillmere {

namespace {

class DrawingNode final : public QSGRenderNode
{
public:
    explicit DrawingNode(QQuickItem *item)
        : item_(item)
    {
    }

    void setDrawing(Drawing drawing)
    {
        drawing_ = std::move(drawing);
        markDirty(DirtyMaterial | DirtyGeometry);
    }

    void render(const RenderState *state) override
    {
        if (!item_ || !item_->window() || !drawing_.paint)
            return;
        QQuickWindow *window = item_->window();
        auto *painter = static_cast<QPainter *>(window->rendererInterface()->getResource(
            window, QSGRendererInterface::PainterResource));
        if (!painter)
            return;
        painter->save();
        if (const QRegion *clip = state->clipRegion(); clip && !clip->isEmpty())
            painter->setClipRegion(*clip, Qt::ReplaceClip);
        painter->setTransform(matrix()->toTransform());
        clipToAncestors(*painter);
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        drawing_.paint(*painter);
        painter->restore();
    }

    QRectF rect() const override { return drawing_.bounds; }
    RenderingFlags flags() const override { return BoundedRectRendering; }
    StateFlags changedStates() const override { return {}; }

private:
    /// The renderer keeps ordinary nodes inside the clips above them, and leaves that to us.
    void clipToAncestors(QPainter &painter) const
    {
        for (auto *item = item_->parentItem(); item; item = item->parentItem()) {
            if (item->clip())
                painter.setClipRect(item_->mapRectFromItem(item, item->clipRect()),
                                    Qt::IntersectClip);
        }
    }

    QPointer<QQuickItem> item_;
    Drawing drawing_;
};

} // namespace

PaintedItem::PaintedItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

QSGNode *PaintedItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = old ? static_cast<DrawingNode *>(old) : new DrawingNode(this);
    node->setDrawing(drawing());
    return node;
}

void PaintedItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

double deviceScale(const QPainter &painter)
{
    return painter.device()->devicePixelRatioF();
}

void paintInDevicePixels(QPainter &painter,
                         const std::function<void(const QTransform &toDevice)> &paint)
{
    const double scale = deviceScale(painter);
    const QTransform toDevice = painter.transform() * QTransform::fromScale(scale, scale);
    painter.save();
    painter.setTransform(QTransform::fromScale(1 / scale, 1 / scale));
    paint(toDevice);
    painter.restore();
}

} // namespace quillmere
