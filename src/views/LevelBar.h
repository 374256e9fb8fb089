#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The bar of a level HUD: a track and its filled part. Past an end stop it stretches beyond its
/// own end by `bump` units and gets a little thinner, as if it were elastic.
class LevelBar : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double level READ level WRITE setLevel NOTIFY levelChanged)
    Q_PROPERTY(double bump READ bump WRITE setBump NOTIFY bumpChanged)
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged)
    Q_PROPERTY(bool colorsFollowTrack READ colorsFollowTrack WRITE setColorsFollowTrack NOTIFY
                   colorsFollowTrackChanged)
    Q_PROPERTY(bool glow READ glow WRITE setGlow NOTIFY glowChanged)
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)

public:
    using PaintedItem::PaintedItem;

    double level() const { return level_; }
    void setLevel(double level); ///< 0..1, clamped
    double bump() const { return bump_; }
    void setBump(double units); ///< > 0 past the full end, < 0 past the empty end
    QList<QColor> colors() const { return colors_; }
    void setColors(const QList<QColor> &colors); ///< from the empty end on, at equal distances
    bool colorsFollowTrack() const { return colorsFollowTrack_; }
    void
    setColorsFollowTrack(bool follow); ///< the colours belong to the track, not to its filled part
    bool glow() const { return glow_; }
    void setGlow(bool glow);
    bool isMirrored() const { return mirrored_; }
    void setMirrored(bool mirrored); ///< fills from the right

Q_SIGNALS:
    void levelChanged();
    void bumpChanged();
    void colorsChanged();
    void colorsFollowTrackChanged();
    void glowChanged();
    void mirroredChanged();

protected:
    Drawing drawing() const override;

private:
    template <class T>
    void change(T &field, const T &value, void (LevelBar::*changed)());

    double level_ = 0;
    double bump_ = 0;
    QList<QColor> colors_{Qt::white};
    bool colorsFollowTrack_ = false;
    bool glow_ = false;
    bool mirrored_ = false;
};

} // namespace quillmere
