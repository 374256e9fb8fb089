#include "views/GlyphItem.h"

#include "views/Glyphs.h"

#include <QPainter>

#include <cmath>

namespace quillmere {

void GlyphItem::setSymbol(const QString &symbol)
{
    if (symbol == symbol_)
        return;
    symbol_ = symbol;
    update();
    Q_EMIT symbolChanged();
}

void GlyphItem::setColor(const QColor &color)
{
    if (color == color_)
        return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

Drawing GlyphItem::drawing() const
{
    const QRectF box(QPointF(), size());
    if (symbol_.isEmpty() || box.isEmpty())
        return {};
    const auto paint = [box, symbol = symbol_, color = color_](QPainter &painter) {
        paintInDevicePixels(painter, [&](const QTransform &toDevice) {
            const QRectF device = toDevice.mapRect(box);
            // Even sides only: a growing glyph stays centred on the same pixel corner.
            const int side = 2 * static_cast<int>(std::lround(device.width() / 2));
            const QPointF center = device.center();
            const QPoint corner(static_cast<int>(std::lround(center.x())) - side / 2,
                                static_cast<int>(std::lround(center.y())) - side / 2);
            painter.drawImage(corner, Glyphs::shared().image(symbol, side, color));
        });
    };
    return {box.adjusted(-1, -1, 1, 1), paint};
}

} // namespace quillmere
