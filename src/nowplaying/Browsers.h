#pragma once

#include <QLatin1StringView>
#include <QString>

namespace quillmere {

/// A browser whose tabs can be asked for.
struct Browser {
    QLatin1StringView bundleID;
    QLatin1StringView name; ///< as its users know it
};

/// The browser that an identifier or a name of an application stands for; null if none does.
const Browser *supportedBrowser(const QString &application);

/// The identifier of that browser; what is no supported browser is kept as it is.
QString browserBundleID(const QString &application);

/// Whether an application is a browser at all, supported or not.
bool isBrowser(const QString &bundleID);

} // namespace quillmere
