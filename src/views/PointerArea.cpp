#include "views/PointerArea.h"

#include "views/IslandModel.h"

#include <QInputDevice>
#include <QWheelEvent>

namespace quillmere {

namespace {

/// Wheels with high resolution send small steps too, so the device decides and not the deltas. On
/// Wayland every scroll comes from one device, but there a touchpad tells the phases of a gesture.
bool isTouchpad(const QWheelEvent &event)
{
    const QInputDevice *device = event.device();
    const bool fromTouchpad = device && device->type() == QInputDevice::DeviceType::TouchPad;
    return event.phase() != Qt::NoScrollPhase || (fromTouchpad && !event.pixelDelta().isNull());
}

} // namespace

PointerArea::PointerArea(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

IslandModel *PointerArea::island() const
{
    return island_;
}

void PointerArea::setIsland(IslandModel *island)
{
    if (island == island_)
        return;
    island_ = island;
    Q_EMIT islandChanged();
}

void PointerArea::mousePressEvent(QMouseEvent *)
{
    if (island_)
        island_->press();
}

void PointerArea::wheelEvent(QWheelEvent *event)
{
    if (island_)
        island_->wheel(event->pixelDelta(), event->angleDelta(), isTouchpad(*event));
}

} // namespace quillmere
