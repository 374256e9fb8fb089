#pragma once

#include "platform/FocusState.h"
#include "platform/Listeners.h"
#include "platform/LowPowerMode.h"
#include "platform/SystemSound.h"
#include "platform/UserNotifications.h"

#include <vector>

namespace quillmere {

/// Remembers what was shown.
struct FakeUserNotifications : UserNotifications {
    void deliver(const UserNotification &notification) override { shown.push_back(notification); }
    std::vector<UserNotification> shown;
};

/// Remembers what was played.
struct FakeSystemSound : SystemSound {
    void play(Sound sound) override { played.push_back(sound); }
    std::vector<Sound> played;
};

/// A mode that the test switches.
template <class Mode>
struct FakeMode : Mode {
    std::optional<bool> isOn() const override { return mode; }
    Task onChanged(std::function<void(bool)> listener) override
    {
        return listeners.add(std::move(listener));
    }
    void set(bool isOn)
    {
        mode = isOn;
        listeners.notify(isOn);
    }
    std::optional<bool> mode;
    Listeners<bool> listeners;
};
using FakeLowPowerMode = FakeMode<LowPowerMode>;

struct FakeFocusState : FakeMode<FocusState> {
    QString teller() const override { return mode ? QStringLiteral("Fake") : QString(); }
    Task onTellerChanged(std::function<void()> listener) override
    {
        return tellers.add(std::move(listener));
    }
    Listeners<> tellers;
};

} // namespace quillmere
