#pragma once

#include "platform/Task.h"

#include <functional>
#include <optional>

namespace quillmere {

/// A colour in sRGB, each part 0..1.
struct AccentColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    bool operator==(const AccentColor &) const = default;
};

/// How the user wants programs to look and move. Answers at once from what is known; until the
/// desktop has answered, and on desktops that tell nothing, these are the defaults. Main thread
/// only.
class Appearance
{
public:
    virtual ~Appearance() = default;

    virtual bool reducesMotion() const = 0;
    virtual bool highContrast() const = 0;
    virtual std::optional<AccentColor> accentColor() const = 0; ///< absent: the user chose none
    /// Dark windows or light ones; absent: the user leaves it to us.
    virtual std::optional<bool> prefersDark() const = 0;

    /// Called after any of the values above has really changed.
    virtual Task onChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
