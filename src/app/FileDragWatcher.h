#pragma once

#include "platform/Owner.h"
#include "platform/Task.h"

#include <optional>

namespace quillmere {

class DragPasteboard;
class GlobalEvents;
class NotificationCenter;
class RunLoop;
class SettingsStore;

/// Sees the drags of files that begin anywhere on the desktop, so the island can open before they
/// reach it, and posts "QuillmereDragEntered" and "QuillmereDragExited". Main thread only.
class FileDragWatcher
{
public:
    FileDragWatcher(RunLoop &runLoop, GlobalEvents &globalEvents, DragPasteboard &dragPasteboard,
                    NotificationCenter &notificationCenter, const SettingsStore &settings);

    void start();

    /// Removes both monitors; nothing is posted any more.
    void stop();

    /// A file drag came over the island or left it, by dropping too. Where the desktop shows
    /// nothing of drags elsewhere, this is the only sign of one; otherwise it changes nothing.
    void islandDragChanged(bool over);

    /// A drag of files is in progress.
    bool dragDetected() const { return dragDetected_; }

private:
    void leftMouseDragged();
    void leftMouseUp();
    void contentKnown(int changeCount, unsigned int gesture);
    void enter();
    void exit();
    void postExited();

    RunLoop &runLoop_;
    GlobalEvents &globalEvents_;
    DragPasteboard &dragPasteboard_;
    NotificationCenter &notificationCenter_;
    const SettingsStore &settings_;

    bool dragDetected_ = false;
    int lastDragChangeCount_ = 0;
    std::optional<int> askedChangeCount_; // in this gesture
    unsigned int gesture_ = 0;            // counts the releases of the button
    bool exitPending_ = false;

    Task globalDragMonitor_;
    Task globalDragUpMonitor_;
    Task exit_;
    Owner owner_;
};

} // namespace quillmere
