#pragma once

#include "island/HUDContent.h"
#include "views/HUDFace.h"

#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <optional>

namespace quillmere {

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
    Q_PROPERTY(quillmere::HUDFace firstFace READ firstFace NOTIFY facesChanged FINAL)
    Q_PROPERTY(quillmere::HUDFace secondFace READ secondFace NOTIFY facesChanged FINAL)
    Q_PROPERTY(int shownFace READ shownFace NOTIFY shownFaceChanged FINAL)
    Q_PROPERTY(int contentDelay READ contentDelay NOTIFY contentDelayChanged FINAL)
    Q_PROPERTY(bool overshoot READ overshoot NOTIFY overshootChanged FINAL)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY
                   reducedMotionChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)

public:
    IslandModel(HUDManager &hudManager, ContentView &contentView, FloatingPanel &panel,
                SettingsStore &settings, QObject *parent = nullptr);

    double targetWidth() const { return size_.width(); }
    double targetHeight() const { return size_.height(); }
    double cornerRadius() const { return cornerRadius_; }
    double contentTop() const; ///< below the camera housing, if the screen has one
    QString presentation() const;
    double alpha() const;
    const HUDFace &firstFace() const { return faces_[0]; }
    const HUDFace &secondFace() const { return faces_[1]; }
    int shownFace() const { return shownFace_; }       ///< 0 or 1; -1 = no HUD
    int contentDelay() const { return contentDelay_; } ///< ms a new face waits for the silhouette
    bool overshoot() const;
    bool reducedMotion() const { return reducedMotion_; }
    void setReducedMotion(bool reduced);
    QString accessibleText() const;

    /// A press on the island that no control took.
    Q_INVOKABLE void press();

    /// A turn of the wheel over the island, or a finger's way over a touch pad.
    Q_INVOKABLE void wheel(const QPointF &pixelDelta, const QPointF &angleDelta);

Q_SIGNALS:
    void shapeChanged();
    void contentTopChanged();
    void presentationChanged();
    void alphaChanged();
    void facesChanged();
    void shownFaceChanged();
    void contentDelayChanged();
    void overshootChanged();
    void reducedMotionChanged();
    void accessibleTextChanged();

private:
    void updateShape();
    void updateHUD();
    void refreshFace();
    void show(const HUDContent &hud);
    void setContentDelay(int milliseconds);

    HUDManager &hudManager_;
    ContentView &contentView_;
    FloatingPanel &panel_;
    SettingsStore &settings_;

    QSizeF size_;
    double cornerRadius_ = 0;
    std::array<HUDFace, 2> faces_;
    std::optional<HUDContent> shownHUD_;
    int shownFace_ = -1;
    int lastFace_ = 0;
    int contentDelay_ = 0;
    bool reducedMotion_ = false;
};

} // namespace quillmere
