#pragma once

#include "island/HUDContent.h"
#include "island/IdleWings.h"
#include "platform/Task.h"
#include "views/FaceModel.h"

#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <optional>

namespace quillmere {

class Appearance;
class AudioOutputPicker;
class ContentView;
class FloatingPanel;
class HUDManager;
class SettingsStore;
enum class Presentation;

/// How round the island's lower corners are, around content of this height.
double cornerRadius(Presentation presentation, double contentHeight);

/// What the island's scene shows, ready to be drawn; the scene decides nothing but how to move
/// there.
///
/// A HUD has one of two faces. A HUD that only changes its level keeps its face, so its bar moves;
/// any other gets the face that is not on screen, so the two can cross-fade.
class IslandModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(double targetWidth READ targetWidth NOTIFY shapeChanged FINAL)
    Q_PROPERTY(double targetHeight READ targetHeight NOTIFY shapeChanged FINAL)
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY shapeChanged FINAL)
    Q_PROPERTY(double contentTop READ contentTop NOTIFY contentTopChanged FINAL)
    Q_PROPERTY(QString presentation READ presentation NOTIFY presentationChanged FINAL)
    Q_PROPERTY(double alpha READ alpha NOTIFY alphaChanged FINAL)
    Q_PROPERTY(quillmere::FaceModel *firstFace READ firstFace CONSTANT FINAL)
    Q_PROPERTY(quillmere::FaceModel *secondFace READ secondFace CONSTANT FINAL)
    Q_PROPERTY(int shownFace READ shownFace NOTIFY shownFaceChanged FINAL)
    Q_PROPERTY(int contentDelay READ contentDelay NOTIFY contentDelayChanged FINAL)
    Q_PROPERTY(bool overshoot READ overshoot NOTIFY overshootChanged FINAL)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged FINAL)
    Q_PROPERTY(bool expanded READ isExpanded NOTIFY presentationChanged FINAL)
    Q_PROPERTY(double surfaceAlpha READ surfaceAlpha NOTIFY surfaceChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY accentChanged FINAL)
    Q_PROPERTY(bool showsWings READ showsWings NOTIFY wingsChanged FINAL)
    Q_PROPERTY(bool wingsShowMedia READ wingsShowMedia NOTIFY wingsChanged FINAL)
    Q_PROPERTY(bool wingsShowAssistant READ wingsShowAssistant NOTIFY wingsChanged FINAL)
    Q_PROPERTY(bool wingsShowTimer READ wingsShowTimer NOTIFY wingsChanged FINAL)
    Q_PROPERTY(quillmere::FaceModel *wings READ wings CONSTANT FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)

public:
    IslandModel(HUDManager &hudManager, ContentView &contentView, FloatingPanel &panel,
                SettingsStore &settings, Appearance &appearance, const AudioOutputPicker &output,
                QObject *parent = nullptr);

    double targetWidth() const { return size_.width(); }
    double targetHeight() const { return size_.height(); }
    double cornerRadius() const { return cornerRadius_; }
    double contentTop() const; ///< below the camera housing, if the screen has one
    QString presentation() const;
    double alpha() const;
    FaceModel *firstFace() { return &faces_[0]; }
    FaceModel *secondFace() { return &faces_[1]; }
    const HUDFace &face(int number) const;             ///< 0 or 1
    int shownFace() const { return shownFace_; }       ///< 0 or 1; -1 = no HUD
    int contentDelay() const { return contentDelay_; } ///< ms a new face waits for the silhouette
    bool overshoot() const;
    bool reducedMotion() const;
    bool isExpanded() const;
    double surfaceAlpha() const; ///< of the island's body; below 1 it is glass
    QColor accent() const;       ///< of what is current, and of what is pressed most
    /// The activity in the wings of the pill.
    bool showsWings() const { return showsWings_; }
    /// That activity is the playing track; otherwise it has its face.
    bool wingsShowMedia() const { return shownWings_.media; }
    bool wingsShowAssistant() const { return shownWings_.assistant; }
    bool wingsShowTimer() const { return shownWings_.timer; }
    FaceModel *wings() { return &wings_; }
    QString accessibleText() const;

    /// A press on the island that no control took: opens the link of the HUD on show or the
    /// application a message is from, or else is a tap.
    Q_INVOKABLE void press();

    /// The pointer came over the island or left it.
    Q_INVOKABLE void hover(bool inside);

    /// Files are being dragged over the island, or no longer.
    Q_INVOKABLE void dragOver(bool over);
    Q_INVOKABLE void drop(const QList<QUrl> &files);

    /// A turn of the wheel over the island, or a finger's way over a touchpad.
    void wheel(const QPointF &pixelDelta, const QPointF &angleDelta, bool touchpad);

Q_SIGNALS:
    void shapeChanged();
    void contentTopChanged();
    void presentationChanged();
    void alphaChanged();
    void shownFaceChanged();
    void contentDelayChanged();
    void overshootChanged();
    void reducedMotionChanged();
    void accessibleTextChanged();
    void surfaceChanged();
    void accentChanged();
    void wingsChanged();
    void linkActivated(const QUrl &link);
    /// The application whose message was pressed.
    void applicationWanted(const QString &bundleID);
    void dragOverChanged(bool over);
    void filesDropped(const QList<QUrl> &files);

private:
    void updateShape();
    void updateHUD();
    void updateWings();
    void refreshFace();
    void show(const HUDContent &hud);
    void setContentDelay(int milliseconds);

    HUDManager &hudManager_;
    ContentView &contentView_;
    FloatingPanel &panel_;
    SettingsStore &settings_;
    Appearance &appearance_;
    const AudioOutputPicker &output_;

    QSizeF size_;
    double cornerRadius_ = 0;
    std::array<FaceModel, 2> faces_;
    std::optional<HUDContent> shownHUD_;
    int shownFace_ = -1;
    int lastFace_ = 0;
    int contentDelay_ = 0;
    bool showsWings_ = false;
    WingContent shownWings_; ///< what fades out stays as it was
    FaceModel wings_;
    bool pointerInside_ = false;
    Task appearanceObserver_;
};

} // namespace quillmere
