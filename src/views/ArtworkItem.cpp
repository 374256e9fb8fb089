#include "views/ArtworkItem.h"

#include "views/Glyphs.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

const QColor cardColor(255, 255, 255, 31); // 12 %
const QColor glyphColor(255, 255, 255, 140);
const QColor hairline(255, 255, 255, 26); // a dark picture still has an edge
constexpr double glyphShare = 0.42;

QImage cropped(const QImage &image, QSize size)
{
    const QImage scaled =
        image.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2);
    return scaled.copy(QRect(corner, size)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage placeholder(const QString &symbol, QSize size)
{
    QImage card(size, QImage::Format_ARGB32_Premultiplied);
    card.fill(cardColor);
    if (symbol.isEmpty())
        return card;
    const int side = 2 * static_cast<int>(std::lround(size.width() * glyphShare / 2));
    QPainter painter(&card);
    painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2,
                      Glyphs::shared().image(symbol, side, glyphColor));
    return card;
}

struct Card {
    QImage image{};
    double width = 1; ///< share of the whole, as seen at a slant
    double opacity = 1;
};

void paintCard(QPainter &painter, const Card &card, const QRectF &box, double radius)
{
    if (card.width <= 0 || card.opacity <= 0)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * card.opacity);
    painter.translate(box.center());
    painter.scale(card.width, 1);
    painter.translate(-box.center());
    QBrush brush(card.image);
    brush.setTransform(QTransform::fromScale(box.width() / card.image.width(),
                                             box.height() / card.image.height()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, card.width < 1);
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    painter.fillPath(path, brush);

    const double line = 1 / deviceScale(painter);
    const double inset = line / 2;
    painter.setPen(QPen(hairline, line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
    painter.restore();
}

} // namespace

MediaModel *ArtworkItem::media() const
{
    return media_;
}

void ArtworkItem::setMedia(MediaModel *media)
{
    if (media == media_)
        return;
    if (media_)
        disconnect(media_, nullptr, this, nullptr);
    media_ = media;
    if (media_) {
        connect(media_, &MediaModel::artworkChanged, this, &ArtworkItem::takeArtwork);
        connect(media_, &MediaModel::symbolChanged, this, &ArtworkItem::takeSymbol);
        takeSymbol();
        takeArtwork();
    }
    Q_EMIT mediaChanged();
}

void ArtworkItem::takeArtwork()
{
    before_ =
        std::exchange(now_, {.image = media_->artwork(), .symbol = now_.symbol, .fitted = {}});
    update();
    ++turns_;
    Q_EMIT turnsChanged();
}

void ArtworkItem::takeSymbol()
{
    now_.symbol = media_->symbol();
    if (now_.image.isNull())
        now_.fitted = {};
    update();
}

void ArtworkItem::setRadius(double radius)
{
    if (radius == radius_)
        return;
    radius_ = radius;
    update();
    Q_EMIT radiusChanged();
}

void ArtworkItem::setCrossFades(bool crossFades)
{
    if (crossFades == crossFades_)
        return;
    crossFades_ = crossFades;
    update();
    Q_EMIT crossFadesChanged();
}

void ArtworkItem::setTurn(double turn)
{
    if (turn == turn_)
        return;
    turn_ = turn;
    if (turn_ >= turns_)
        before_ = {}; // seen for the last time
    update();
    Q_EMIT turnChanged();
}

QImage ArtworkItem::fitted(Side &side, QSize pixels) const
{
    if (side.fitted.size() != pixels)
        side.fitted =
            side.image.isNull() ? placeholder(side.symbol, pixels) : cropped(side.image, pixels);
    return side.fitted;
}

Drawing ArtworkItem::drawing() const
{
    const QRectF box(QPointF(), size());
    const QSize pixels = (size() * window()->effectiveDevicePixelRatio()).toSize();
    if (pixels.isEmpty())
        return {};
    const double done = std::clamp(1 - (turns_ - turn_), 0.0, 1.0);
    std::vector<Card> cards; // the lower one first
    if (done >= 1) {
        cards = {{.image = fitted(now_, pixels)}};
    } else if (crossFades_) {
        cards = {{.image = fitted(before_, pixels)},
                 {.image = fitted(now_, pixels), .opacity = done}};
    } else {
        const double slant = std::abs(std::cos(done * std::numbers::pi));
        cards = {{.image = fitted(done < 0.5 ? before_ : now_, pixels), .width = slant}};
    }
    return {box, [box, cards, radius = radius_](QPainter &painter) {
                for (const Card &card : cards)
                    paintCard(painter, card, box, radius);
            }};
}

} // namespace quillmere
