#pragma once

#include "island/HUDContent.h"

namespace quillmere {

/// Whether a HUD of this type comes unasked and can wait. The others answer something the user has
/// just done, or would be too late afterwards.
constexpr bool isNews(HUDContent::HUDType type)
{
    using enum HUDContent::HUDType;
    return type == Email || type == Notification || type == Weather;
}

} // namespace quillmere
