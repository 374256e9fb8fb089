#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <functional>

namespace quillmere {

/// Runs the event loop until `condition` holds; false after 20 s. What other processes do comes in
/// its own time, so this wait is a real one. `tick` runs in between.
inline bool eventually(const std::function<bool()> &condition,
                       const std::function<void()> &tick = {})
{
    QTimer wake;
    wake.start(5);
    const QDeadlineTimer limit(std::chrono::seconds(20));
    while (!condition()) {
        if (limit.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (tick)
            tick();
    }
    return true;
}

} // namespace quillmere
