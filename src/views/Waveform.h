#pragma once

#include "views/AnimatedItem.h"

#include <QColor>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Bars that move while music plays and settle when it stops. They wake the processor only while
/// they play and somebody can see them.
class Waveform : public AnimatedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool playing READ isPlaying WRITE setPlaying NOTIFY playingChanged)
    Q_PROPERTY(bool still READ isStill WRITE setStill NOTIFY stillChanged)
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged)
    Q_PROPERTY(int bars READ bars WRITE setBars NOTIFY barsChanged)
    Q_PROPERTY(double barWidth READ barWidth WRITE setBarWidth NOTIFY barsChanged)
    Q_PROPERTY(double gap READ gap WRITE setGap NOTIFY barsChanged)

public:
    explicit Waveform(QQuickItem *parent = nullptr);

    bool isPlaying() const { return playing_; }
    void setPlaying(bool playing);
    bool isStill() const { return still_; }
    void setStill(bool still); ///< stands still though it plays, for who wants no motion
    QList<QColor> colors() const { return colors_; }
    void setColors(const QList<QColor> &colors); ///< one, or from top to bottom
    int bars() const { return bars_; }
    void setBars(int bars);
    double barWidth() const { return barWidth_; }
    void setBarWidth(double width);
    double gap() const { return gap_; }
    void setGap(double gap);

Q_SIGNALS:
    void playingChanged();
    void stillChanged();
    void colorsChanged();
    void barsChanged();

protected:
    Drawing drawing() const override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updateMotion() override;
    void advance(double seconds) override;

private:
    double height(int bar) const;
    void resizeBars();

    bool playing_ = false;
    bool still_ = false;
    QList<QColor> colors_{Qt::white};
    int bars_ = 5;
    double barWidth_ = 2.5;
    double gap_ = 2;

    double energy_ = 0;  ///< 0 at rest, 1 playing
    double seconds_ = 0; ///< of playing
};

} // namespace quillmere
