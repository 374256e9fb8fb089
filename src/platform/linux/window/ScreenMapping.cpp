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

QScreen *screenAbove(const QRectF &frame)
{
    const QPointF topCentre(frame.center().x(), frame.top());
    for (QScreen *screen : QGuiApplication::screens()) {
        if (QRectF(screen->geometry()).contains(topCentre))
            return screen;
    }
    return nullptr;
}

} // namespace quillmere
