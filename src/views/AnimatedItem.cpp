#include "views/AnimatedItem.h"

#include <QQuickWindow>
#include <QTimerEvent>

#include <algorithm>

namespace quillmere {

namespace {

constexpr double longestFrame = 0.1; // seconds; after a pause it goes on where it stopped

} // namespace

AnimatedItem::AnimatedItem(std::chrono::milliseconds frameInterval, QQuickItem *parent)
    : PaintedItem(parent)
    , frameInterval_(frameInterval)
{
}

bool AnimatedItem::canBeSeen() const
{
    return isVisible() && window() && window()->isVisible() && window()->isExposed();
}

void AnimatedItem::setMoving(bool moving)
{
    if (moving == isMoving())
        return;
    if (!moving) {
        frameTimer_.stop();
        return;
    }
    sinceFrame_.start();
    frameTimer_.start(static_cast<int>(frameInterval_.count()), Qt::PreciseTimer, this);
}

void AnimatedItem::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != frameTimer_.timerId())
        return PaintedItem::timerEvent(event);
    advance(std::min(longestFrame, static_cast<double>(sinceFrame_.restart()) / 1000));
    update();
}

void AnimatedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    PaintedItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        if (watched_)
            watched_->removeEventFilter(this);
        watched_ = data.window;
        if (watched_)
            watched_->installEventFilter(this);
    }
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        updateMotion();
}

/// The window may be hidden, covered or on a screen that is off, which no item hears of.
bool AnimatedItem::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    const bool handled = PaintedItem::eventFilter(watched, event);
    if (type == QEvent::Expose || type == QEvent::Show || type == QEvent::Hide)
        updateMotion();
    return handled;
}

} // namespace quillmere
