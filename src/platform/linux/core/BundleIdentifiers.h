#pragma once

#include <QString>

namespace quillmere {

/// The bundle identifier of a known browser or player, from any name it goes by here: its program,
/// desktop entry, package, D-Bus name or title ("google-chrome-stable", "org.chromium.Chromium",
/// "Google Chrome", "firefox.instance_1_42"). Any other name is returned unchanged.
QString canonicalBundleIdentifier(const QString &name);

} // namespace quillmere
