#pragma once

#include "platform/DragPasteboard.h"
#include "platform/linux/window/X11Observer.h"
#include "platform/linux/window/XcbSelectionWatch.h"

#include <optional>
#include <vector>

namespace quillmere {

/// The selection through which X programs hand over what they drag. It changes hands when a drag
/// begins; what is in it is asked only when somebody wants to know, and once a drag.
class X11DragPasteboard : public DragPasteboard
{
public:
    explicit X11DragPasteboard(X11Observer &observer);
    ~X11DragPasteboard() override;
    X11DragPasteboard(const X11DragPasteboard &) = delete;
    X11DragPasteboard &operator=(const X11DragPasteboard &) = delete;

    int changeCount() const override { return changeCount_; }
    void containsFileURLs(const Owner &owner, std::function<void(bool)> answer) override;

private:
    /// How far the talk with the dragging program is.
    enum class Step {
        Unasked,
        Targets,   ///< asked which formats there are
        Content,   ///< asked for the list of URLs
        Announced, ///< it will come in parts
        Known,
    };
    struct Question {
        Owner::Reference owner;
        std::function<void(bool)> answer;
    };

    void createWindow();
    void handle(const xcb_generic_event_t &event);
    void ownerChanged(xcb_window_t owner, xcb_timestamp_t time);
    void ask(Step step, xcb_atom_t target, xcb_timestamp_t time);
    void askAsOfLastMotion();
    void refused();
    void delivered(const xcb_selection_notify_event_t &event);
    void propertyChanged(const xcb_property_notify_event_t &event);
    void read();
    void readTargets(const xcb_get_property_reply_t &reply);
    void readContent(const xcb_get_property_reply_t &reply);
    void settle(bool hasFiles);

    XcbConnection &connection_;
    const X11Atoms &atoms_;
    XcbSelectionWatch selection_;
    xcb_window_t window_ = XCB_WINDOW_NONE; // takes the answers

    int changeCount_ = 0;
    xcb_timestamp_t ownedSince_ = XCB_CURRENT_TIME;
    xcb_timestamp_t askedFor_ = XCB_CURRENT_TIME;
    int retries_ = 0;
    QTimer retry_;
    Step step_ = Step::Known;
    bool hasFiles_ = false;
    bool reading_ = false;
    bool moreCame_ = false; // while reading
    std::vector<Question> questions_;
    Task events_;
    Owner owner_;
};

} // namespace quillmere
