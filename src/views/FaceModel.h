#pragma once

#include "views/HUDFace.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// One of the island's two faces as its scene reads it.
///
/// An object that stays, told apart property by property: handed over as a value, the face would be
/// copied into the script engine by every binding that reads it, at every change of the level, and
/// held there until the engine's next collection.
class FaceModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int layout READ layout NOTIFY layoutChanged FINAL)
    Q_PROPERTY(QSizeF size READ size NOTIFY sizeChanged FINAL)
    Q_PROPERTY(QString symbol READ symbol NOTIFY symbolChanged FINAL)
    Q_PROPERTY(double symbolSize READ symbolSize NOTIFY symbolSizeChanged FINAL)
    Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged FINAL)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY pictureChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged FINAL)
    Q_PROPERTY(double level READ level NOTIFY levelChanged FINAL)
    Q_PROPERTY(int levelAnimation READ levelAnimation NOTIFY levelAnimationChanged FINAL)
    Q_PROPERTY(QString figures READ figures NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString label READ label NOTIFY labelChanged FINAL)
    Q_PROPERTY(QList<QColor> barColors READ barColors NOTIFY barColorsChanged FINAL)
    Q_PROPERTY(bool colorsFollowTrack READ colorsFollowTrack NOTIFY colorsFollowTrackChanged FINAL)
    Q_PROPERTY(bool glow READ glow NOTIFY glowChanged FINAL)
    Q_PROPERTY(QColor boxColor READ boxColor NOTIFY boxColorChanged FINAL)
    Q_PROPERTY(bool hasBoxColor READ hasBoxColor NOTIFY boxColorChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY accentChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)

public:
    const HUDFace &face() const { return face_; }

    /// Tells of what differs from the former face, once all of it is in place.
    void setFace(HUDFace face);

    int layout() const { return face_.layout; } ///< a HUDLayout::Kind
    QSizeF size() const { return face_.size; }
    QString symbol() const { return face_.symbol; }
    double symbolSize() const { return face_.symbolSize; }
    QImage picture() const { return face_.picture; }
    bool hasPicture() const { return !face_.picture.isNull(); }
    QString title() const { return face_.title; }
    QString subtitle() const { return face_.subtitle; }
    double level() const { return face_.level; }
    int levelAnimation() const { return face_.levelAnimation; }
    QString figures() const { return face_.figures; }
    QString label() const { return face_.label; }
    QList<QColor> barColors() const { return face_.barColors; }
    bool colorsFollowTrack() const { return face_.colorsFollowTrack; }
    bool glow() const { return face_.glow; }
    QColor boxColor() const { return face_.boxColor; }
    bool hasBoxColor() const { return face_.boxColor.isValid(); }
    QColor accent() const { return face_.accent; }
    QString accessibleText() const { return face_.accessibleText; }

Q_SIGNALS:
    void layoutChanged();
    void sizeChanged();
    void symbolChanged();
    void symbolSizeChanged();
    void pictureChanged();
    void titleChanged();
    void subtitleChanged();
    void levelChanged();
    void levelAnimationChanged();
    void figuresChanged();
    void labelChanged();
    void barColorsChanged();
    void colorsFollowTrackChanged();
    void glowChanged();
    void boxColorChanged();
    void accentChanged();
    void accessibleTextChanged();

private:
    HUDFace face_;
};

} // namespace quillmere
