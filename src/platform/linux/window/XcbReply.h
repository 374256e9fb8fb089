#pragma once

#include <cstdlib>
#include <memory>

namespace quillmere {

/// What xcb hands out with malloc.
struct FreeDeleter {
    void operator()(void *memory) const { std::free(memory); }
};
template <class T>
using XcbReply = std::unique_ptr<T, FreeDeleter>;

} // namespace quillmere
