#pragma once

#include "platform/RunningApplications.h"
#include "platform/linux/wayland/WaylandGlobals.h"

namespace quillmere {

/// The applications of the windows the compositor tells of; none where it keeps them to itself.
/// Main thread only.
class WaylandRunningApplications : public RunningApplications
{
public:
    explicit WaylandRunningApplications(WaylandGlobals &globals);

    QStringList running() const override { return running_; }
    QString frontmost() const override { return frontmost_; }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }

private:
    void watch();
    void update();

    WaylandGlobals &globals_;
    QStringList running_;
    QString frontmost_;
    Listeners<> listeners_;
    Task answered_;
    Task toplevels_;
};

} // namespace quillmere
