#include "views/FigureText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

/// The width of the widest of the ten digits that `digit` belongs to.
double digitWidth(const QFontMetricsF &metrics, QChar digit)
{
    const char16_t zero = static_cast<char16_t>(digit.unicode() - digit.digitValue());
    double widest = 0;
    for (char16_t i = 0; i < 10; ++i)
        widest =
            std::max(widest, metrics.horizontalAdvance(QChar(static_cast<char16_t>(zero + i))));
    return widest;
}

} // namespace

void FigureText::setText(const QString &text)
{
    if (text == text_)
        return;
    text_ = text;
    layOut();
    Q_EMIT textChanged();
}

void FigureText::setFont(const QFont &font)
{
    if (font == font_)
        return;
    font_ = font;
    layOut();
    Q_EMIT fontChanged();
}

void FigureText::setColor(const QColor &color)
{
    if (color == color_)
        return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void FigureText::layOut()
{
    cells_.clear();
    if (text_.isEmpty()) { // before there is any text, no font needs to be loaded
        setImplicitSize(0, 0);
        update();
        return;
    }
    const QFontMetricsF metrics(font_);
    double x = 0;
    const auto append = [&](const QString &text, double width) {
        cells_.append({text, x + (width - metrics.horizontalAdvance(text)) / 2});
        x += width;
    };
    QString between;
    const auto flush = [&] {
        if (!between.isEmpty())
            append(between, metrics.horizontalAdvance(between));
        between.clear();
    };
    for (const QChar character : text_) {
        if (character.isDigit()) {
            flush();
            append(character, digitWidth(metrics, character));
        } else {
            between += character;
        }
    }
    flush();
    setImplicitSize(std::ceil(x), std::ceil(metrics.height()));
    update();
}

Drawing FigureText::drawing() const
{
    if (cells_.isEmpty())
        return {};
    const double baseline = std::round(QFontMetricsF(font_).ascent());
    const auto paint = [cells = cells_, font = font_, color = color_, baseline](QPainter &painter) {
        painter.setFont(font);
        painter.setPen(color);
        for (const Cell &cell : cells)
            painter.drawText(QPointF(cell.x, baseline), cell.text);
    };
    return {QRectF(0, 0, implicitWidth(), implicitHeight()).adjusted(-1, -1, 1, 1), paint};
}

} // namespace quillmere
