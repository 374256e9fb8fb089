#include "platform/linux/window/X11DragPasteboard.h"

#include <QByteArrayView>

#include <algorithm>
#include <chrono>
#include <span>

namespace quillmere {

namespace {

/// In units of four bytes. The first lines tell.
constexpr std::uint32_t mostRead = 4096;

constexpr std::chrono::milliseconds retryInterval{100};
constexpr int mostRetries = 50;

std::span<const xcb_atom_t> atomsIn(const xcb_get_property_reply_t &reply)
{
    if (reply.format != 32)
        return {};
    return {static_cast<const xcb_atom_t *>(xcb_get_property_value(&reply)), reply.value_len};
}

/// Links of the web come as the same format.
bool namesFiles(QByteArrayView uriList)
{
    constexpr QByteArrayView scheme = "file:";
    while (!uriList.isEmpty()) {
        const auto end = uriList.indexOf('\n');
        const auto line = (end < 0 ? uriList : uriList.first(end)).trimmed();
        if (line.size() > scheme.size() &&
            line.first(scheme.size()).compare(scheme, Qt::CaseInsensitive) == 0)
            return true;
        uriList = end < 0 ? QByteArrayView() : uriList.sliced(end + 1);
    }
    return false;
}

} // namespace

X11DragPasteboard::X11DragPasteboard(X11Observer &observer)
    : connection_(observer.connection())
    , atoms_(observer.atoms())
{
    retry_.setSingleShot(true);
    retry_.setInterval(retryInterval);
    QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { askAsOfLastMotion(); });
    if (!connection_.isOpen())
        return;
    events_ = connection_.onEvent([this](const xcb_generic_event_t &event) { handle(event); });
    createWindow();
    selection_.start(connection_, window_, atoms_.dragSelection);
    connection_.flush();
}

X11DragPasteboard::~X11DragPasteboard()
{
    if (!connection_.isOpen())
        return;
    xcb_destroy_window(connection_.raw(), window_);
    connection_.flush();
}

void X11DragPasteboard::createWindow()
{
    window_ = xcb_generate_id(connection_.raw());
    constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection_.raw(), 0, window_, connection_.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
}

void X11DragPasteboard::containsFileURLs(const Owner &owner, std::function<void(bool)> answer)
{
    if (step_ == Step::Known || !connection_.isOpen())
        return answer(hasFiles_);
    questions_.push_back({owner.reference(), std::move(answer)});
    if (step_ == Step::Unasked)
        ask(Step::Targets, atoms_.targets, ownedSince_);
}

void X11DragPasteboard::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (const auto *change = selection_.change(event)) {
        ownerChanged(change->owner, change->selection_timestamp);
    } else if (type == XCB_SELECTION_NOTIFY) {
        delivered(reinterpret_cast<const xcb_selection_notify_event_t &>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
        propertyChanged(reinterpret_cast<const xcb_property_notify_event_t &>(event));
    }
}

void X11DragPasteboard::ownerChanged(xcb_window_t owner, xcb_timestamp_t time)
{
    ++changeCount_;
    ownedSince_ = time;
    retries_ = 0;
    retry_.stop();
    questions_.clear();
    hasFiles_ = false;
    step_ = owner == XCB_WINDOW_NONE ? Step::Known : Step::Unasked;
}

void X11DragPasteboard::ask(Step step, xcb_atom_t target, xcb_timestamp_t time)
{
    step_ = step;
    askedFor_ = time;
    xcb_convert_selection(connection_.raw(), window_, atoms_.dragSelection, target,
                          atoms_.dragContent, time);
    connection_.flush();
}

// Qt's own sources answer only to the time of the motion they have passed on last, which is the
// pointer's last one as soon as it lingers over a window that takes drags.
void X11DragPasteboard::askAsOfLastMotion()
{
    connection_.await<xcb_get_motion_events_reply_t>(
        owner_,
        xcb_get_motion_events(connection_.raw(), connection_.root(), ownedSince_, XCB_CURRENT_TIME),
        [this, asked = changeCount_](const auto *reply) {
            if (asked != changeCount_)
                return;
            const int length = reply ? xcb_get_motion_events_events_length(reply) : 0;
            if (length > 0)
                ask(Step::Content, atoms_.uriList,
                    xcb_get_motion_events_events(reply)[length - 1].time);
            else
                refused();
        });
    connection_.flush();
}

void X11DragPasteboard::refused()
{
    if (retries_++ == 0)
        askAsOfLastMotion();
    else if (retries_ <= mostRetries)
        retry_.start();
    else
        settle(false);
}

void X11DragPasteboard::delivered(const xcb_selection_notify_event_t &event)
{
    const bool expected = step_ == Step::Targets || step_ == Step::Content;
    if (!expected || event.requestor != window_ || event.selection != atoms_.dragSelection ||
        event.time != askedFor_)
        return;
    if (event.property != XCB_ATOM_NONE)
        read();
    else if (step_ == Step::Targets)
        ask(Step::Content, atoms_.uriList, ownedSince_); // not everybody lists the formats
    else
        refused();
}

void X11DragPasteboard::propertyChanged(const xcb_property_notify_event_t &event)
{
    if (event.window != window_ || event.atom != atoms_.dragContent ||
        event.state != XCB_PROPERTY_NEW_VALUE)
        return;
    if (reading_) {
        moreCame_ = true;
    } else if (step_ == Step::Announced) {
        read();
    } else if (step_ == Step::Known) {
        // The rest of what came in parts is taken unread, so the program gets to its end.
        xcb_delete_property(connection_.raw(), window_, atoms_.dragContent);
        connection_.flush();
    }
}

void X11DragPasteboard::read()
{
    reading_ = true;
    moreCame_ = false;
    const auto cookie = xcb_get_property(connection_.raw(), false, window_, atoms_.dragContent,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, mostRead);
    connection_.await<xcb_get_property_reply_t>(owner_, cookie,
                                                [this, asked = changeCount_](const auto *reply) {
                                                    reading_ = false;
                                                    if (asked != changeCount_)
                                                        return;
                                                    if (!reply)
                                                        settle(false);
                                                    else if (step_ == Step::Targets)
                                                        readTargets(*reply);
                                                    else
                                                        readContent(*reply);
                                                });
    xcb_delete_property(connection_.raw(), window_, atoms_.dragContent);
    connection_.flush();
}

void X11DragPasteboard::readTargets(const xcb_get_property_reply_t &reply)
{
    const auto formats = atomsIn(reply);
    if (std::ranges::find(formats, atoms_.uriList) != formats.end())
        ask(Step::Content, atoms_.uriList, ownedSince_);
    else
        settle(false);
}

void X11DragPasteboard::readContent(const xcb_get_property_reply_t &reply)
{
    if (reply.type == atoms_.incremental && step_ == Step::Content) {
        step_ = Step::Announced;
        if (moreCame_)
            read();
        return;
    }
    const auto *bytes = static_cast<const char *>(xcb_get_property_value(&reply));
    settle(reply.format == 8 &&
           namesFiles({bytes, qsizetype{xcb_get_property_value_length(&reply)}}));
    if (moreCame_)
        xcb_delete_property(connection_.raw(), window_, atoms_.dragContent);
    connection_.flush();
}

void X11DragPasteboard::settle(bool hasFiles)
{
    step_ = Step::Known;
    hasFiles_ = hasFiles;
    for (const auto &question : std::exchange(questions_, {})) {
        if (!question.owner.expired())
            question.answer(hasFiles);
    }
}

} // namespace quillmere
