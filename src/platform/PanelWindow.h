#pragma once

#include "platform/Task.h"

#include <QFlags>
#include <QRectF>
#include <QSizeF>

#include <functional>

namespace quillmere {

/// How the panel takes part in the desktop.
struct PanelStyle {
    QSizeF contentSize;
    bool nonActivating = true;   ///< a click never takes the focus from the user's application
    bool fullSizeContent = true; ///< content reaches under any title bar
};

enum class CollectionBehavior {
    CanJoinAllSpaces = 1,
    Stationary = 2,
    FullScreenAuxiliary = 4,
    Transient = 8, ///< left out of overviews
};
Q_DECLARE_FLAGS(CollectionBehaviors, CollectionBehavior)
Q_DECLARE_OPERATORS_FOR_FLAGS(CollectionBehaviors)

enum class SharingType { None, ReadOnly };

struct PanelTraits {
    bool floating = true;
    bool becomesKeyOnlyIfNeeded = true;
    bool opaque = false;
    bool hasShadow = false;
    bool movableByBackground = false;
    bool hidesOnDeactivate = false;
    bool acceptsMouseMoved = true;
};

/// The window that carries the island over the top edge of a screen.
///
/// The frame is the island's own frame in logical, global units; how large a surface the desktop
/// really gets to draw it on is the implementation's business. Only the frame takes input.
/// Main thread only.
class PanelWindow
{
public:
    /// What this desktop can do for the panel; settings that need more have no effect here.
    struct Capabilities {
        bool hidesFromScreenCapture = false;
        bool hidesInOverview = false;
        bool detectsFullscreen = true;    ///< else the panel never counts as covered
        bool seesPointerElsewhere = true; ///< where the pointer is and clicks, outside our windows
    };

    virtual ~PanelWindow() = default;

    virtual Capabilities capabilities() const = 0;

    virtual void create(const PanelStyle &style) = 0;
    /// Stacking above the desktop's menu bar, in levels.
    virtual void setLevelAboveMainMenu(int levels) = 0;
    virtual void setTraits(const PanelTraits &traits) = 0;
    virtual void setCollectionBehavior(CollectionBehaviors behavior) = 0;
    virtual void setSharingType(SharingType type) = 0;
    virtual void attachContent() = 0;
    virtual void registerForFileDrops() = 0;

    /// Moves the panel. The first frame makes it fit to be shown.
    virtual void setFrame(const QRectF &frame) = 0;

    /// Shows or hides it; hidden, it takes no input and costs the desktop nothing.
    virtual void setVisible(bool visible) = 0;

    /// Puts it in front of everything again.
    virtual void orderFront() = 0;

    /// While it is key, what is typed goes to it; after that, to whom it went before.
    virtual void setKey(bool key) = 0;

    /// True while another program's window fills the panel's screen and is the active one.
    virtual bool isCoveredByFullscreen() const = 0;
    virtual Task onFullscreenChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
