#pragma once

#include <pulse/context.h>
#include <pulse/glib-mainloop.h>
#include <pulse/operation.h>
#include <pulse/proplist.h>
#include <pulse/subscribe.h>

#include <memory>

namespace quillmere {

namespace pulse_detail {

struct FreeMainLoop {
    void operator()(pa_glib_mainloop *loop) const { pa_glib_mainloop_free(loop); }
};

struct FreeProperties {
    void operator()(pa_proplist *properties) const { pa_proplist_free(properties); }
};

struct CloseContext {
    void operator()(pa_context *context) const
    {
        // Disconnecting reports to the callbacks, whose owner is going away.
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

struct CancelOperation {
    void operator()(pa_operation *operation) const
    {
        pa_operation_cancel(operation);
        pa_operation_unref(operation);
    }
};

} // namespace pulse_detail

using PulseMainLoop = std::unique_ptr<pa_glib_mainloop, pulse_detail::FreeMainLoop>;
using PulseProperties = std::unique_ptr<pa_proplist, pulse_detail::FreeProperties>;

/// Closes the connection without a last callback. Must not be destroyed inside a callback of its
/// own.
using PulseContext = std::unique_ptr<pa_context, pulse_detail::CloseContext>;

/// A request whose callback must not come once the handle is gone.
using PulseRequest = std::unique_ptr<pa_operation, pulse_detail::CancelOperation>;

/// Lets a command go on by itself. Null (the connection is down) is fine.
inline void letRun(pa_operation *command)
{
    if (command)
        pa_operation_unref(command);
}

} // namespace quillmere
