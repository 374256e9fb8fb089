#pragma once

#include "island/ScrollEvent.h"
#include "platform/GlobalEvents.h"
#include "platform/NotificationCenter.h"
#include "platform/PanelWindow.h"
#include "platform/RunLoop.h"
#include "platform/Screens.h"
#include "settings/SettingsStore.h"

#include <QObject>

#include <optional>

namespace quillmere {

/// The borderless window that carries the island over the top edge of the chosen screen.
///
/// Decides where the island hangs and when it is to be seen, and turns raw pointer input into
/// app-wide events. It starts transparent and unshown; the first displaysDidChange() that finds a
/// screen shows it. Its content decides its size. Main thread only.
class FloatingPanel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
    Q_PROPERTY(double alpha READ alpha NOTIFY alphaChanged)
    Q_PROPERTY(QSizeF collapsedSize READ collapsedSize NOTIFY collapsedSizeChanged)
    Q_PROPERTY(double housingHeight READ housingHeight NOTIFY collapsedSizeChanged)

public:
    FloatingPanel(RunLoop &runLoop, Screens &screens, GlobalEvents &globalEvents,
                  NotificationCenter &notificationCenter, PanelWindow &window,
                  SettingsStore &settings, QObject *parent = nullptr);

    /// Where the island is, in logical, global units.
    QRectF frame() const { return frame_; }
    QSizeF size() const { return frame_.size(); }
    /// 0 until the panel has its first position, then 1.
    double alpha() const { return alpha_; }
    /// The size of the idle pill on the present screen.
    QSizeF collapsedSize() const { return collapsedSize_; }
    /// How far the camera housing reaches into the present screen; 0 without one. What the island
    /// shows belongs below it.
    double housingHeight() const { return housingHeight_; }

    /// True while a full-screen window covers the screen and the user wants no HUDs there.
    bool suppressesHUDs() const;

    /// Resizes the panel; it goes on hanging from the top edge, centred on the notch. A size that
    /// is empty or not finite is ignored.
    void setSize(QSizeF size);

    /// Whether the panel shows the idle pill, which may be hidden over full-screen windows.
    void setIdle(bool idle);

    /// Chooses the screen anew and hangs the panel there, its size kept.
    void displaysDidChange();

    void applyHideInMissionControl(bool hide);
    void applyHideFromScreenCapture(bool hide);

    void orderFront();

    /// Whether what is typed goes to the panel, while it is to be seen.
    void setKey(bool key);

    /// A press on the island that no control of it took.
    void mouseDown();
    void scrollWheel(const ScrollEvent &event);

    /// Asked before a scroll reaches the collapsed island; true: it was part of a gesture.
    std::function<bool(const ScrollEvent &event)> takesScroll;

    /// A vertical scroll over the collapsed island, in notches of a wheel; positive is away from
    /// the user. A touchpad gives whole steps only.
    std::function<void(double steps)> onCollapsedScroll;

Q_SIGNALS:
    void frameChanged();
    void alphaChanged();
    void collapsedSizeChanged();

private:
    void setUpWindow();
    void settingDidChange(const QString &key);
    void chooseScreen();
    void place(QSizeF size);
    void updateCollapsedSize();
    void updateVisibility();
    bool hiddenByFullscreen() const;
    void clickedAnywhere(QPointF position);
    void collapsedScroll(const ScrollEvent &event);

    RunLoop &runLoop_;
    Screens &screens_;
    GlobalEvents &globalEvents_;
    NotificationCenter &notificationCenter_;
    PanelWindow &window_;
    SettingsStore &settings_;

    std::optional<ScreenInfo> screen_;
    QRectF frame_;
    QSizeF collapsedSize_;
    double housingHeight_ = 0;
    double alpha_ = 0;
    double scrolledPoints_ = 0; // of a touchpad, towards the next whole step
    bool idle_ = true;
    bool wantsKey_ = false;
    bool visible_ = false;

    Task globalClickMonitor_;
    Task fullscreenObserver_;
    Owner owner_;
};

} // namespace quillmere
