#pragma once

#include "platform/Listeners.h"
#include "platform/Owner.h"
#include "platform/linux/window/XcbReply.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>

#include <deque>

namespace quillmere {

/// A connection of our own to the X server, next to Qt's: it hears of events Qt does not select,
/// and never waits. Requests are sent, and their answers are collected when they have come.
///
/// Without a server, or once it is gone, every call is harmless and nothing is ever heard. Main
/// thread only.
class XcbConnection : public QObject
{
public:
    /// Connects to $DISPLAY.
    XcbConnection();
    ~XcbConnection() override;

    bool isOpen() const { return screen_ != nullptr; }
    /// For making requests; usable only while isOpen().
    xcb_connection_t *raw() const { return connection_.get(); }
    xcb_window_t root() const { return screen_ ? screen_->root : xcb_window_t{XCB_WINDOW_NONE}; }
    int screenNumber() const { return screenNumber_; }

    /// Called on every event; those of extensions come as they are.
    Task onEvent(std::function<void(const xcb_generic_event_t &)> listener);

    /// Calls `done` with the answer to a request, or with null if it failed, unless the owner has
    /// gone by then. The answers come in the order of the requests.
    template <class Reply, class Cookie>
    void await(const Owner &owner, Cookie cookie, std::function<void(const Reply *)> done)
    {
        pending_.push_back(
            {cookie.sequence, owner.reference(),
             [done = std::move(done)](void *reply) { done(static_cast<const Reply *>(reply)); }});
    }

    /// Sends what was requested since the last time.
    void flush();

private:
    struct Pending {
        unsigned int sequence;
        Owner::Reference owner;
        std::function<void(void *reply)> done;
    };
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    void collect();
    bool collectEvents();
    bool collectReplies();
    void close();

    int screenNumber_ = 0;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    const xcb_screen_t *screen_ = nullptr;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::deque<Pending> pending_;
    Listeners<const xcb_generic_event_t &> listeners_;
    QTimer collectSoon_;
};

} // namespace quillmere
