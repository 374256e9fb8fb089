#include "platform/linux/wayland/WaylandToplevels.h"

#include <wayland-client.h>

#include <algorithm>
#include <set>
#include <span>

namespace quillmere {

namespace {

constexpr int longestName = 255;

} // namespace

/// A window as of the last `done`; what comes before one is only half of a new state.
struct WaylandToplevels::Toplevel {
    struct State {
        QString application;
        bool isActive = false;
        bool isFullscreen = false;
        std::set<const wl_output *> outputs;
        bool operator==(const State &) const = default;
    };

    WaylandToplevels &owner;
    WaylandProxy<zwlr_foreign_toplevel_handle_v1> handle;
    State pending;
    State current;
};

/// The wire events; `data` is the WaylandToplevels or the Toplevel they tell of.
struct WaylandToplevels::Events {
    using Handle = zwlr_foreign_toplevel_handle_v1;

    static Toplevel &toplevel(void *data) { return *static_cast<Toplevel *>(data); }

    static void added(void *data, zwlr_foreign_toplevel_manager_v1 *, Handle *handle)
    {
        auto &self = *static_cast<WaylandToplevels *>(data);
        auto &added = self.toplevels_.emplace_back(new Toplevel{self, {}, {}, {}});
        added->handle.reset(handle);
        zwlr_foreign_toplevel_handle_v1_add_listener(handle, &handleListener, added.get());
    }

    static void finished(void *, zwlr_foreign_toplevel_manager_v1 *) {}

    static void title(void *, Handle *, const char *) {}

    static void application(void *data, Handle *, const char *name)
    {
        toplevel(data).pending.application = QString::fromUtf8(name).left(longestName);
    }

    static void outputEnter(void *data, Handle *, wl_output *output)
    {
        toplevel(data).pending.outputs.insert(output);
    }

    static void outputLeave(void *data, Handle *, wl_output *output)
    {
        toplevel(data).pending.outputs.erase(output);
    }

    static void state(void *data, Handle *, wl_array *states)
    {
        const std::span values(static_cast<const std::uint32_t *>(states->data),
                               states->size / sizeof(std::uint32_t));
        const auto has = [&values](std::uint32_t state) {
            return std::find(values.begin(), values.end(), state) != values.end();
        };
        auto &pending = toplevel(data).pending;
        pending.isActive = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED);
        pending.isFullscreen = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_FULLSCREEN);
    }

    static void done(void *data, Handle *)
    {
        auto &changed = toplevel(data);
        if (changed.current == changed.pending)
            return;
        changed.current = changed.pending;
        changed.owner.listeners_.notify();
    }

    static void closed(void *data, Handle *)
    {
        auto &gone = toplevel(data);
        gone.owner.remove(gone);
    }

    static constexpr zwlr_foreign_toplevel_manager_v1_listener managerListener{added, finished};
    static constexpr zwlr_foreign_toplevel_handle_v1_listener handleListener{
        title, application, outputEnter, outputLeave, state, done, closed};
};

WaylandToplevels::WaylandToplevels(zwlr_foreign_toplevel_manager_v1 &manager)
    : manager_(&manager)
{
    zwlr_foreign_toplevel_manager_v1_add_listener(&manager, &Events::managerListener, this);
}

WaylandToplevels::~WaylandToplevels() = default;

bool WaylandToplevels::isCovered(const wl_output &output) const
{
    return std::any_of(toplevels_.begin(), toplevels_.end(), [&output](const auto &toplevel) {
        const auto &state = toplevel->current;
        return state.isActive && state.isFullscreen && state.outputs.contains(&output);
    });
}

QStringList WaylandToplevels::applications() const
{
    QStringList names;
    for (const auto &toplevel : toplevels_)
        names.append(toplevel->current.application);
    return names;
}

QString WaylandToplevels::activeApplication() const
{
    const auto active =
        std::find_if(toplevels_.begin(), toplevels_.end(),
                     [](const auto &toplevel) { return toplevel->current.isActive; });
    return active == toplevels_.end() ? QString() : (*active)->current.application;
}

void WaylandToplevels::remove(const Toplevel &toplevel)
{
    std::erase_if(toplevels_, [&toplevel](const auto &each) { return each.get() == &toplevel; });
    listeners_.notify();
}

} // namespace quillmere
