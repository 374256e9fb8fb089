#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QFont>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// One line of figures, every digit as wide as the widest: a changing number does not jitter, in
/// any font. The item's implicit size is that of the text.
class FigureText : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    using PaintedItem::PaintedItem;

    QString text() const { return text_; }
    void setText(const QString &text);
    QFont font() const { return font_; }
    void setFont(const QFont &font);
    QColor color() const { return color_; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();

protected:
    Drawing drawing() const override;

private:
    struct Cell {
        QString text;
        double x;
    };
    void layOut();

    QString text_;
    QFont font_;
    QColor color_ = Qt::white;
    QList<Cell> cells_;
};

} // namespace quillmere
