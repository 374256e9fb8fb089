#pragma once

#include "platform/Appearance.h"
#include "platform/Listeners.h"

namespace quillmere {

/// A desktop whose settings the test changes, telling so with changed().
class FakeAppearance : public Appearance
{
public:
    void changed() { listeners_.notify(); }

    bool reducesMotion() const override { return reduced; }
    bool highContrast() const override { return contrast; }
    std::optional<AccentColor> accentColor() const override { return accent; }
    std::optional<bool> prefersDark() const override { return dark; }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }

    bool reduced = false;
    bool contrast = false;
    std::optional<AccentColor> accent;
    std::optional<bool> dark;

private:
    Listeners<> listeners_;
};

} // namespace quillmere
