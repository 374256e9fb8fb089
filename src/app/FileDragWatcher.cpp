#include "app/FileDragWatcher.h"

#include "app/AppEvents.h"
#include "platform/DragPasteboard.h"
#include "platform/GlobalEvents.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"

namespace quillmere {

namespace {

/// So that a drop on the island is handled before the target closes.
constexpr double exitDelay = 0.3;

} // namespace

FileDragWatcher::FileDragWatcher(RunLoop &runLoop, GlobalEvents &globalEvents,
                                 DragPasteboard &dragPasteboard,
                                 NotificationCenter &notificationCenter,
                                 const SettingsStore &settings)
    : runLoop_(runLoop)
    , globalEvents_(globalEvents)
    , dragPasteboard_(dragPasteboard)
    , notificationCenter_(notificationCenter)
    , settings_(settings)
{
}

void FileDragWatcher::start()
{
    globalDragMonitor_ = globalEvents_.onLeftMouseDragged([this](QPointF) { leftMouseDragged(); });
    globalDragUpMonitor_ = globalEvents_.onLeftMouseUp([this](QPointF) { leftMouseUp(); });
}

void FileDragWatcher::stop()
{
    globalDragMonitor_.cancel();
    globalDragUpMonitor_.cancel();
    exit_.cancel();
    exitPending_ = false;
    dragDetected_ = false;
    askedChangeCount_.reset();
    ++gesture_;
}

void FileDragWatcher::islandDragChanged(bool over)
{
    if (globalEvents_.capabilities().drags || over == dragDetected_)
        return;
    if (!over)
        exit();
    else if (settings_.showFileTray.get())
        enter();
}

void FileDragWatcher::leftMouseDragged()
{
    if (dragDetected_ || !settings_.showFileTray.get())
        return;
    const int changeCount = dragPasteboard_.changeCount();
    if (changeCount == lastDragChangeCount_ || changeCount == askedChangeCount_)
        return;
    askedChangeCount_ = changeCount;
    dragPasteboard_.containsFileURLs(
        owner_, [this, changeCount, gesture = gesture_](bool containsFileURLs) {
            if (containsFileURLs)
                contentKnown(changeCount, gesture);
        });
}

void FileDragWatcher::leftMouseUp()
{
    ++gesture_;
    askedChangeCount_.reset();
    if (dragDetected_)
        exit();
}

void FileDragWatcher::contentKnown(int changeCount, unsigned int gesture)
{
    if (changeCount == lastDragChangeCount_)
        return;
    // Also of a drag that is over by now, or the next gesture of any kind would be taken for it.
    lastDragChangeCount_ = changeCount;
    if (gesture == gesture_)
        enter();
}

void FileDragWatcher::enter()
{
    dragDetected_ = true;
    // The two events take turns, however fast one drag follows another.
    if (exitPending_) {
        exit_.cancel();
        postExited();
    }
    notificationCenter_.post(events::dragEntered);
}

void FileDragWatcher::exit()
{
    dragDetected_ = false;
    exitPending_ = true;
    exit_ = runLoop_.after(seconds(exitDelay), [this] { postExited(); });
}

void FileDragWatcher::postExited()
{
    exitPending_ = false;
    notificationCenter_.post(events::dragExited);
}

} // namespace quillmere
