#include "platform/linux/window/XcbConnection.h"

#include <xcb/xcbext.h>

namespace quillmere {

namespace {

const xcb_screen_t *findScreen(xcb_connection_t *connection, int number)
{
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screen.rem > 0 && number > 0; --number)
        xcb_screen_next(&screen);
    return screen.rem > 0 ? screen.data : nullptr;
}

} // namespace

XcbConnection::XcbConnection()
    : connection_(xcb_connect(nullptr, &screenNumber_))
{
    if (xcb_connection_has_error(connection_.get()))
        return;
    screen_ = findScreen(connection_.get(), screenNumber_);
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()),
                                                  QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &XcbConnection::collect);
    collectSoon_.setSingleShot(true);
    connect(&collectSoon_, &QTimer::timeout, this, &XcbConnection::collect);
}

XcbConnection::~XcbConnection() = default;

Task XcbConnection::onEvent(std::function<void(const xcb_generic_event_t &)> listener)
{
    return listeners_.add(std::move(listener));
}

void XcbConnection::flush()
{
    if (!isOpen())
        return;
    xcb_flush(connection_.get());
    // A full socket makes the flush read, and what it has read no longer wakes the notifier.
    collectSoon_.start(0);
}

void XcbConnection::collect()
{
    bool more = isOpen();
    while (more) {
        more = collectEvents();
        more = collectReplies() || more;
    }
    if (isOpen() && xcb_connection_has_error(connection_.get()))
        close();
}

bool XcbConnection::collectEvents()
{
    bool any = false;
    while (const auto event =
               XcbReply<xcb_generic_event_t>(xcb_poll_for_event(connection_.get()))) {
        any = true;
        listeners_.notify(*event);
    }
    return any;
}

bool XcbConnection::collectReplies()
{
    bool any = false;
    while (!pending_.empty()) {
        void *reply = nullptr;
        xcb_generic_error_t *error = nullptr;
        if (!xcb_poll_for_reply(connection_.get(), pending_.front().sequence, &reply, &error))
            break;
        any = true;
        const XcbReply<void> freeReply(reply);
        const XcbReply<xcb_generic_error_t> freeError(error);
        const auto answered = std::move(pending_.front());
        pending_.pop_front();
        if (!answered.owner.expired())
            answered.done(reply);
    }
    return any;
}

void XcbConnection::close()
{
    // Inside the notifier's own signal, so it can't be deleted here.
    notifier_->setEnabled(false);
    screen_ = nullptr;
    pending_.clear();
}

} // namespace quillmere
