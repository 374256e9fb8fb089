#pragma once

#include "views/PaintedItem.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointer>

#include <chrono>

namespace quillmere {

/// An item that is drawn anew at a steady pace, but only while it has somewhere to go and somebody
/// can see it. At all other times it wakes nobody.
class AnimatedItem : public PaintedItem
{
    Q_OBJECT

public:
    /// Whether it has a timer running.
    bool isMoving() const { return frameTimer_.isActive(); }

protected:
    AnimatedItem(std::chrono::milliseconds frameInterval, QQuickItem *parent);

    bool canBeSeen() const;

    void setMoving(bool moving);

    /// It came into view or went out of it: decides whether to move.
    virtual void updateMotion() = 0;

    /// A frame, this many seconds after the last; a pause does not count.
    virtual void advance(double seconds) = 0;

    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const std::chrono::milliseconds frameInterval_;
    QBasicTimer frameTimer_;
    QElapsedTimer sinceFrame_;
    QPointer<QQuickWindow> watched_;
};

} // namespace quillmere
