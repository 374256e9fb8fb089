#pragma once

#include "platform/DragPasteboard.h"

namespace quillmere {

/// A compositor shows nobody what is dragged before it reaches their own window.
class NoDragPasteboard : public DragPasteboard
{
public:
    int changeCount() const override { return 0; }
    void containsFileURLs(const Owner &, std::function<void(bool)>) override {}
};

} // namespace quillmere
