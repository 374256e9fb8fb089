#pragma once

#include "views/PaintedItem.h"

#include <QImage>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The artwork of a track, with rounded corners and cropped to fill the item; a glyph on a card
/// where there is none.
///
/// A new one turns up like the other side of a card: `turns` counts the changes, and `turn` is
/// driven there by the scene.
class ArtworkItem : public PaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Artwork)
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(bool crossFades READ crossFades WRITE setCrossFades NOTIFY crossFadesChanged)
    Q_PROPERTY(int turns READ turns NOTIFY turnsChanged)
    Q_PROPERTY(double turn READ turn WRITE setTurn NOTIFY turnChanged)

public:
    using PaintedItem::PaintedItem;

    QImage image() const { return now_.image; }
    void setImage(const QImage &image);
    QString symbol() const { return now_.symbol; }
    void setSymbol(const QString &symbol);
    double radius() const { return radius_; }
    void setRadius(double radius);
    bool crossFades() const { return crossFades_; }
    void setCrossFades(bool crossFades); ///< instead of turning
    int turns() const { return turns_; }
    double turn() const { return turn_; }
    void setTurn(double turn);

Q_SIGNALS:
    void imageChanged();
    void symbolChanged();
    void radiusChanged();
    void crossFadesChanged();
    void turnsChanged();
    void turnChanged();

protected:
    Drawing drawing() const override;

private:
    /// One of the card's two sides.
    struct Side {
        QImage image;
        QString symbol;
        QImage fitted; ///< at the pixels last shown
    };

    QImage fitted(Side &side, QSize pixels) const;

    mutable Side now_;
    mutable Side before_;
    double radius_ = 0;
    bool crossFades_ = false;
    int turns_ = 0;
    double turn_ = 0;
};

} // namespace quillmere
