#pragma once

#include <QString>

namespace quillmere {

/// The desktop entry of the application that others know by this bundle identifier, from whatever
/// it was installed; empty if it is not. Reads files; any thread.
QString desktopEntryOf(const QString &bundleID);

/// Where its service is to be had in a browser; empty if nowhere.
QString pageOf(const QString &bundleID);

} // namespace quillmere
