#pragma once

#include "platform/Owner.h"

#include <functional>

namespace quillmere {

/// What the user is dragging, or has dragged last, in whichever program. Main thread only.
class DragPasteboard
{
public:
    virtual ~DragPasteboard() = default;

    /// Differs from drag to drag; 0 before the first.
    virtual int changeCount() const = 0;

    /// Asks whether the present content includes URLs of files. The dragging program is asked where
    /// need be, so the answer comes later, or within the call if it is known. There is none if the
    /// content changes first, the program stays silent or the owner is gone by then.
    virtual void containsFileURLs(const Owner &owner, std::function<void(bool)> answer) = 0;
};

} // namespace quillmere
