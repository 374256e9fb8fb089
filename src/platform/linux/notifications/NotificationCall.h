#pragma once

#include <QString>

#include <dbus/dbus.h>

#include <optional>

namespace quillmere {

/// What a program has asked the notification service to show. Texts are cut at a length that no
/// message reaches.
struct NotificationCall {
    static constexpr qsizetype longestText = 4'096; // UTF-16 units

    QString sender{};       ///< unique name on the bus
    QString appName{};      ///< as the program calls itself
    QString desktopEntry{}; ///< identifier of its desktop entry
    QString origin{};       ///< host of the web page it is for
    QString title{};
    QString body{};
    bool hasMarkup = false; ///< the body may have some
    bool replaces = false;  ///< takes the place of a former one
};

/// Reads a Notify call of org.freedesktop.Notifications or an AddNotification call of
/// org.gtk.Notifications; absent for any other message.
std::optional<NotificationCall> readNotificationCall(DBusMessage *message);

} // namespace quillmere
