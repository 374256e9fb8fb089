#pragma once

#include "platform/Listeners.h"
#include "platform/PanelWindow.h"
#include "platform/linux/window/X11Observer.h"
#include "platform/linux/window/X11Surface.h"

#include <QObject>
#include <QPointer>
#include <QRegion>
#include <QWindow>

namespace quillmere {

/// The panel as an unmanaged X window: a transparent canvas of fixed size that hangs from the top
/// edge, of which only the island's frame takes input. Being unmanaged it is on every desktop,
/// no window manager moves it or gives it the focus, which it has to take when it is to be typed
/// in; it keeps itself in front of the others.
///
/// The window is made by whoever draws in it and outlives the panel's use of it; its top left
/// corner is where the canvas begins. On another window system it is shown without what only X
/// offers.
class X11PanelWindow : public QObject, public PanelWindow
{
public:
    X11PanelWindow(QWindow &window, X11Observer &observer);
    ~X11PanelWindow() override;

    Capabilities capabilities() const override { return {}; }

    void create(const PanelStyle &style) override;
    void setLevelAboveMainMenu(int levels) override;
    void setTraits(const PanelTraits &traits) override;
    void setCollectionBehavior(CollectionBehaviors behavior) override;
    void setSharingType(SharingType type) override;
    void attachContent() override;
    void registerForFileDrops() override;
    void setFrame(const QRectF &frame) override;
    void setVisible(bool visible) override;
    void orderFront() override;
    void setKey(bool key) override;
    bool isCoveredByFullscreen() const override { return covered_; }
    Task onFullscreenChanged(std::function<void()> listener) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// In device pixels of the canvas.
    struct Shape {
        QRect input;
        std::optional<QRegion> bounding; ///< where nothing composites; else the whole canvas
        bool operator==(const Shape &) const = default;
    };

    void surfaceCreated();
    void moveCanvas();
    void updateShape();
    void updateCovered();

    QPointer<QWindow> window_;
    X11Observer &observer_;
    QRectF frame_;
    PanelTraits traits_;
    bool visible_ = false;
    bool covered_ = false;
    std::optional<xcb_window_t> focusBefore_; ///< present while the panel is key
    std::optional<Shape> shape_;              // as the server knows it

    Listeners<> fullscreenListeners_;
    Task restackObserver_;
    Task compositedObserver_;
    Task fullscreenObserver_;
};

} // namespace quillmere
