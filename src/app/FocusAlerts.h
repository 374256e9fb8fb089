#pragma once

#include "island/HUDContent.h"
#include "platform/Task.h"

#include <functional>

namespace quillmere {

class FocusState;
class HUDManager;
class SettingsStore;

/// Tells when the desktop is asked not to disturb and when no longer, and decides which HUDs come
/// through meanwhile. Main thread only.
class FocusAlerts
{
public:
    /// There are no HUDs of the types that `isSuppressed`.
    FocusAlerts(FocusState &focusState, SettingsStore &settings, HUDManager &hudManager,
                std::function<bool(HUDContent::HUDType type)> isSuppressed);

    void start();
    void stop() { changes_.cancel(); }

    /// Whether a HUD of this type may come now: what can wait may not, some are up to a setting.
    bool allows(HUDContent::HUDType type) const;

private:
    void changed(bool isOn);

    FocusState &focusState_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::function<bool(HUDContent::HUDType)> isSuppressed_;
    Task changes_;
};

} // namespace quillmere
