#pragma once

#include "platform/ParsedNotification.h"
#include "platform/linux/notifications/NotificationCall.h"

#include <optional>

namespace quillmere {

/// The message of a chat application in a notification, as plain text; its `appID` is the
/// application's bundle identifier. Absent for notifications of anything else.
///
/// A package, a desktop entry and a browser that shows the application's page each go by another
/// name. A browser says which page a notification is for; only Firefox keeps that to itself.
std::optional<ParsedNotification> chatMessage(const NotificationCall &call);

} // namespace quillmere
