#pragma once

namespace quillmere {

/// Starts the program when the user logs in. Errors are dropped: the stored preference is the truth
/// and is applied again at the next start. Main thread; the work is done in the background.
class LoginItem
{
public:
    virtual ~LoginItem() = default;
    virtual void registerItem() = 0;
    virtual void unregisterItem() = 0;
};

} // namespace quillmere
