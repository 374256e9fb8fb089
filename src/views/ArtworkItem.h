#pragma once

#include "views/MediaModel.h"
#include "views/PaintedItem.h"

#include <QImage>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The artwork of the playing track, with rounded corners and cropped to fill the item; a glyph on
/// a card where there is none. It takes the picture from the model itself: one that passed through
/// a binding would stay with the script engine until its next collection.
///
/// A new one turns up like the other side of a card: `turns` counts the changes, and `turn` is
/// driven there by the scene.
class ArtworkItem : public PaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Artwork)
    Q_PROPERTY(quillmere::MediaModel *media READ media WRITE setMedia NOTIFY mediaChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(bool crossFades READ crossFades WRITE setCrossFades NOTIFY crossFadesChanged)
    Q_PROPERTY(int turns READ turns NOTIFY turnsChanged)
    Q_PROPERTY(double turn READ turn WRITE setTurn NOTIFY turnChanged)

public:
    using PaintedItem::PaintedItem;

    MediaModel *media() const;
    void setMedia(MediaModel *media);
    double radius() const { return radius_; }
    void setRadius(double radius);
    bool crossFades() const { return crossFades_; }
    void setCrossFades(bool crossFades); ///< instead of turning
    int turns() const { return turns_; }
    double turn() const { return turn_; }
    void setTurn(double turn);

Q_SIGNALS:
    void mediaChanged();
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

    void takeArtwork();
    void takeSymbol();
    QImage fitted(Side &side, QSize pixels) const;

    QPointer<MediaModel> media_;
    mutable Side now_;
    mutable Side before_;
    double radius_ = 0;
    bool crossFades_ = false;
    int turns_ = 0;
    double turn_ = 0;
};

} // namespace quillmere
