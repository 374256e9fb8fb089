#pragma once

#include "platform/Listeners.h"
#include "platform/linux/wayland/WaylandProxy.h"

#include <QStringList>

#include "wlr-foreign-toplevel-management-unstable-v1-client.h"

#include <memory>
#include <vector>

namespace quillmere {

/// The windows of all programs as the compositor tells of them: whose they are, which of them
/// has the focus and fills an output.
class WaylandToplevels
{
public:
    /// Takes over the manager.
    explicit WaylandToplevels(zwlr_foreign_toplevel_manager_v1 &manager);
    ~WaylandToplevels();

    /// Whether the active window is a full-screen window on this output.
    bool isCovered(const wl_output &output) const;

    /// The application of each window as its program names it, mostly by the desktop entry; empty
    /// where it doesn't.
    QStringList applications() const;
    /// That of the window with the focus; empty while none has it.
    QString activeApplication() const;

    Task onChanged(std::function<void()> listener) { return listeners_.add(std::move(listener)); }

private:
    struct Events;
    struct Toplevel;

    void remove(const Toplevel &toplevel);

    WaylandProxy<zwlr_foreign_toplevel_manager_v1> manager_;
    std::vector<std::unique_ptr<Toplevel>> toplevels_;
    Listeners<> listeners_;
};

} // namespace quillmere
