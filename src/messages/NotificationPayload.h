#pragma once

#include "platform/NotificationDatabase.h"
#include "platform/ParsedNotification.h"

#include <optional>

namespace quillmere {

/// No notification's payload is as large; a larger one is not looked at.
inline constexpr qsizetype largestPayload = 1'048'576; // bytes

/// What a stored row tells. Absent if its payload is no property list or not a dictionary.
/// Any thread.
std::optional<ParsedNotification> parsedNotification(const NotificationRow &row);

} // namespace quillmere
