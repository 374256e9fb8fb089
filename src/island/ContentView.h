#pragma once

#include "island/HUDContent.h"
#include "island/IslandDebugLogger.h"
#include "island/IslandPages.h"
#include "platform/RunLoop.h"

#include <QObject>
#include <QSizeF>

#include <deque>
#include <optional>

namespace quillmere {

class FloatingPanel;
class Haptics;
class HUDManager;
class IdleWings;
class NotificationCenter;
class SettingsStore;

enum class Presentation { Collapsed, HUD, Expanded };

/// "collapsed", "hud" or "expanded".
QString presentationName(Presentation presentation);

/// How large the island is while it shows a HUD of this type, in logical units.
QSizeF hudSize(HUDContent::HUDType type);

/// The island's presentation: whether it is the pill, a HUD or the dashboard, why, how large that
/// is, and when it becomes the pill again.
///
/// An expansion always ends: a collapse is pending, or the pointer, an open output picker, typing
/// or a file drag holds it up and arms it again when it leaves. Main thread only.
class ContentView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSizeF islandSize READ islandSize NOTIFY islandSizeChanged)

public:
    ContentView(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                FloatingPanel &panel, IdleWings &wings, NotificationCenter &notificationCenter,
                Haptics &haptics, IslandDebugLogger &logger);

    bool isExpanded() const { return isExpanded_; }
    /// The present expansion was asked for by the user, not by a HUD.
    bool userExpanded() const { return userExpanded_; }
    Presentation presentation() const;
    QSizeF islandSize() const { return islandSize_; }

    /// The HUD of a temporary expansion, present as long as that lasts: a HUD under the pointer
    /// stays although its time is over.
    const std::optional<HUDContent> &shownHUD() const { return shownHUD_; }

    /// What the wings of the collapsed pill show, and the activity if it is one.
    const IdleWings &wings() const { return wings_; }
    std::optional<HUDContent> idleActivity() const;

    bool isDraggingFile() const { return isDraggingFile_; }

    /// Whether the dashboard is open at this page.
    bool shows(IslandPage page) const;

    IslandPages &pages() { return pages_; }
    const IslandPages &pages() const { return pages_; }

    /// One that runs or waits to go on has its page, whatever the settings say.
    void setTimerUnderWay(bool isUnderWay);

    void pointerEntered();
    void pointerExited();

    /// The user types into the dashboard, which stays open meanwhile. Closing it ends that.
    bool isTyping() const { return isTyping_; }
    void setTyping(bool typing);

    /// The dashboard was opened without a pointer and has the keyboard: until it closes, or until
    /// the user turns to another window. Every key begins the time anew after which it closes.
    bool hasKeyboard() const { return hasKeyboard_; }
    void keyPressed();
    void keyboardLeft();

    /// Opens the dashboard, or closes what is open.
    void toggle();
    void toggleByKeyboard();

    /// Ends the HUD on show and forgets the activity it left behind.
    void dismissHUD();

    /// Forgets the activity in the wings.
    void dismissIdleActivity();

Q_SIGNALS:
    void presentationChanged();
    void islandSizeChanged();
    void shownHUDChanged();
    void wingsChanged();
    void draggingChanged();
    void typingChanged();

private:
    void setHasKeyboard(bool has);
    void updateKey();
    void observe(NotificationCenter &notificationCenter);
    void offerPages();

    void expandAsUser();
    void hudPresented();
    void pickerShown();
    void pickerDismissed();
    void dragEntered();
    void dragExited();

    void scheduleCollapse(Duration delay);
    void scheduleCollapse();
    void cancelCollapse();
    void collapseDue();
    void collapse();
    bool collapseIsHeldUp() const;

    void setState(bool isExpanded, bool userExpanded);
    void updateSize();
    void playHaptic();
    void logCollapse(const QString &message,
                     IslandDebugLogger::CallSite where = IslandDebugLogger::CallSite::here());

    RunLoop &runLoop_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    FloatingPanel &panel_;
    IdleWings &wings_;
    Haptics &haptics_;
    IslandDebugLogger &logger_;
    IslandPages pages_;

    bool isExpanded_ = false;
    bool userExpanded_ = false;
    bool airPlayPickerOpen_ = false;
    bool pointerInside_ = false;
    bool isDraggingFile_ = false;
    bool isTyping_ = false;
    bool hasKeyboard_ = false;
    bool isKey_ = false; ///< what is typed comes here, for either of these
    bool openedByDrag_ = false;
    bool timerIsUnderWay_ = false;
    std::optional<IslandPage> pageBeforeDrag_;
    std::optional<HUDContent> shownHUD_;
    std::optional<HUDContent> lastHUD_;
    QSizeF islandSize_;

    Task collapseWorkItem_;
    bool collapseIsRearmed_ = false;  ///< it was due, and something held the island open
    std::deque<Task> hoverOutChecks_; ///< in the order in which they come due
    std::deque<Task> observers_;
};

} // namespace quillmere
