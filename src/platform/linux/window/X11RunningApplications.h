#pragma once

#include "platform/RunningApplications.h"
#include "platform/linux/window/X11Observer.h"

#include <map>
#include <vector>

namespace quillmere {

/// The applications whose windows the window manager lists, known by what their windows call
/// themselves. Asks about each window once, when it is new, and waits for nothing. Main thread
/// only.
class X11RunningApplications : public RunningApplications
{
public:
    explicit X11RunningApplications(X11Observer &observer);

    QStringList running() const override { return running_; }
    QString frontmost() const override { return frontmost_; }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }

private:
    void handle(const xcb_generic_event_t &event);
    void queryWindows();
    void take(const std::vector<xcb_window_t> &windows);
    void queryApplication(xcb_window_t window);
    void update();

    X11Observer &observer_;
    std::vector<xcb_window_t> windows_;            // in the order in which they were opened
    std::map<xcb_window_t, QString> applications_; // of these, empty while not known
    QStringList running_;
    QString frontmost_;
    Listeners<> listeners_;
    Task events_;
    Task activations_;
    Owner owner_;
};

} // namespace quillmere
