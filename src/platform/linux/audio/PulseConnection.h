#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/audio/PulseHandles.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QString>

#include <cstdint>
#include <functional>

namespace quillmere {

/// A connection to the sound server, made again for ever whenever it fails.
///
/// Attempts back off up to 15 s, so an absent server costs next to nothing; the server's socket is
/// watched as well, so a server that comes back is met at once. Never starts a server itself.
/// Everything on the main thread, whose event loop must be Qt's GLib one.
class PulseConnection
{
public:
    struct Event {
        pa_subscription_event_type_t facility; ///< PA_SUBSCRIPTION_EVENT_SINK or _SERVER
        pa_subscription_event_type_t type;     ///< _NEW, _CHANGE or _REMOVE
        std::uint32_t index;
    };
    struct Callbacks {
        std::function<void(pa_context &)> ready;    ///< the context is good until `lost`
        std::function<void()> lost;                 ///< only after `ready`
        std::function<void(const Event &)> changed; ///< only between `ready` and `lost`
    };

    PulseConnection(RunLoop &runLoop, Callbacks callbacks);

private:
    void connect();
    void connectIn(Duration delay);
    void retryLater();
    void stateChanged();
    void becomeReady();
    void becomeLost();
    void watchSocket();
    void socketDirectoryChanged();
    QDateTime socketTime() const;

    RunLoop &runLoop_;
    Callbacks callbacks_;
    PulseMainLoop mainLoop_;
    PulseContext context_;
    bool ready_ = false;
    Duration delay_;
    const QString socketDirectory_;
    QDateTime triedSocketTime_;
    QFileSystemWatcher watcher_;
    Task retry_;
};

} // namespace quillmere
