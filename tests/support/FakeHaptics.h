#pragma once

#include "platform/Haptics.h"

namespace quillmere {

/// Counts the feedback it was asked for.
struct FakeHaptics : Haptics {
    void performFeedback() override { ++performed; }
    int performed = 0;
};

} // namespace quillmere
