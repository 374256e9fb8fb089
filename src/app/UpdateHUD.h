#pragma once

#include "app/Appcast.h"
#include "island/HUDContent.h"

namespace quillmere {

/// How long the outcome of a look for updates shows, in seconds.
inline constexpr double updateHUDDuration = 8.0;

/// A press on it opens the page of the new version.
HUDContent updateFoundHUD(const Update &update);
HUDContent upToDateHUD();
HUDContent updateFailedHUD(const QString &reason);

} // namespace quillmere
