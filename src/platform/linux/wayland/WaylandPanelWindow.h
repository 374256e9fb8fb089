#pragma once

#include "platform/Listeners.h"
#include "platform/PanelWindow.h"
#include "platform/linux/wayland/LayerSurface.h"
#include "platform/linux/wayland/WaylandGlobals.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <optional>

namespace quillmere {

/// The panel as a layer surface: a transparent canvas of fixed size that hangs from the top edge of
/// an output, over everything else, of which only the island's frame takes input.
///
/// Qt's window gets no role from Qt (QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT has to be set) but one
/// of ours. A role is bound to its output and its wl_surface for life, so another output, another
/// scale, or the compositor closing it make a new surface. Without an output there is none.
///
/// The window is made by whoever draws in it and outlives the panel's use of it; its top left
/// corner is where the canvas begins.
class WaylandPanelWindow : public QObject, public PanelWindow
{
public:
    WaylandPanelWindow(QWindow &window, WaylandGlobals &globals);
    ~WaylandPanelWindow() override;

    Capabilities capabilities() const override;

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

private:
    /// What a mapped surface can't change any more.
    struct Place {
        wl_output *output = nullptr;
        double scale = 1;
        bool operator==(const Place &) const = default;
    };

    void update();
    void map(QScreen &screen, const Place &place);
    void unmap();
    void show();
    void dropRole();
    void updateInputRegion();
    void answered();
    void updateCovered();

    QPointer<QWindow> window_;
    WaylandGlobals &globals_;
    QRectF frame_;
    bool visible_ = false;
    bool covered_ = false;
    std::optional<LayerSurface> role_;
    std::optional<Place> place_; // of the mapped surface
    QTimer update_;

    Listeners<> fullscreenListeners_;
    Task answeredObserver_;
    Task toplevelObserver_;
    Task scaleObserver_;
};

} // namespace quillmere
