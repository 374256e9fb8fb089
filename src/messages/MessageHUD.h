#pragma once

#include "island/HUDContent.h"
#include "messages/WatchedNotificationApp.h"

namespace quillmere {

/// How the desktop's mail application is called in HUDContent::bundleID.
inline constexpr QLatin1StringView mailBundleIdentifier("com.apple.mail");

/// The application a click on its message opens.
QLatin1StringView bundleIdentifier(WatchedNotificationApp app);

/// Who wrote in a chat application, and what.
HUDContent messageHUD(WatchedNotificationApp app, const QString &title,
                      const std::optional<QString> &subtitle, const std::optional<QString> &body);

/// What new mail is about, and from whom: its name, or its address if there is none. A detail comes
/// after that.
HUDContent emailHUD(const QString &sender, const QString &subject, const QString &detail = {});

} // namespace quillmere
