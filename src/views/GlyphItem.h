#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A system symbol, filling the item, on whole device pixels.
class GlyphItem : public PaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Glyph)
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    using PaintedItem::PaintedItem;

    QString symbol() const { return symbol_; }
    void setSymbol(const QString &symbol);
    QColor color() const { return color_; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void symbolChanged();
    void colorChanged();

protected:
    Drawing drawing() const override;

private:
    QString symbol_;
    QColor color_ = Qt::white;
};

} // namespace quillmere
