#pragma once

#include "platform/Owner.h"

#include <functional>
#include <memory>

namespace quillmere {

struct Platform;
class SettingsStore;

/// Holds the setup window while it is open; nothing of it is in memory otherwise. Whoever skips or
/// closes it has seen enough: it comes back only when it is asked for, or when Quillmere ended
/// while it was open. Main thread only.
class OnboardingController
{
public:
    OnboardingController(Platform &platform, SettingsStore &settings);
    ~OnboardingController();

    /// Opens the window at its first step, or brings the open one to the front.
    void show();

    /// Takes the window away; nobody has completed anything by that.
    void putAway();

    /// After a window that was left is gone from memory.
    std::function<void()> onUnloaded;

    bool isShown() const { return setup_ != nullptr; }

private:
    struct Setup;

    void complete();

    Platform &platform_;
    SettingsStore &settings_;
    std::unique_ptr<Setup> setup_;
    std::unique_ptr<Setup> left_; ///< closed, with its own handlers still on the stack
    Owner owner_;
};

} // namespace quillmere
