#include "platform/linux/window/ScreenMapping.h"

#include <QGuiApplication>
#include <QScreen>

namespace quillmere {

ScreenMapping ScreenMapping::of(const QScreen &screen)
{
    return {screen.geometry(), screen.devicePixelRatio()};
}

QRect ScreenMapping::native() const
{
    return {logical.topLeft(), (QSizeF(logical.size()) * scale).toSize()};
}

QPointF ScreenMapping::toLogical(QPoint native) const
{
    return QPointF(logical.topLeft()) + QPointF(native - logical.topLeft()) / scale;
}

QPointF toLogical(QPoint native)
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        const auto mapping = ScreenMapping::of(*screen);
        if (mapping.native().contains(native))
            return mapping.toLogical(native);
    }
    return native;
}

bool carries(const QRect &screen, const QRectF &frame)
{
    const QPointF topCentre(frame.center().x(), frame.top());
    return topCentre.x() >= screen.x() && topCentre.x() < screen.x() + screen.width() &&
           topCentre.y() >= screen.y() && topCentre.y() < screen.y() + screen.height();
}

QScreen *screenAbove(const QRectF &frame)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (carries(screen->geometry(), frame))
            return screen;
    }
    return nullptr;
}

} // namespace quillmere
