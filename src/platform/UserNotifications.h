#pragma once

#include <QString>

namespace quillmere {

/// What the desktop shows to the user besides the island. The texts are plain, without markup.
struct UserNotification {
    QString identifier; ///< a later one of the same identifier takes the place of this one
    QString title;
    QString body;
    QString symbol{};        ///< a name of platform/Symbols.h; empty = the program's own icon
    bool isUrgent = false;   ///< stays until it is dismissed, and is shown while others are not
    bool playsSound = false; ///< the desktop's own for a notification
};

/// The desktop's notifications. Main thread only.
class UserNotifications
{
public:
    virtual ~UserNotifications() = default;

    /// Returns at once. What the desktop does not show is lost, but for a line in the log.
    virtual void deliver(const UserNotification &notification) = 0;
};

} // namespace quillmere
