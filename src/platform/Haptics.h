#pragma once

namespace quillmere {

/// What a hand can feel. Main thread only.
class Haptics
{
public:
    virtual ~Haptics() = default;

    /// One light, generic tap. Does nothing on a machine that cannot.
    virtual void performFeedback() = 0;
};

} // namespace quillmere
