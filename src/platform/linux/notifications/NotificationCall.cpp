#include "platform/linux/notifications/NotificationCall.h"

#include "helpers/SessionBus.h"

#include <algorithm>

namespace quillmere {

namespace {

QString bounded(const std::string &utf8)
{
    // So many bytes hold that many units at least, so the sequence torn at their end is cut off.
    constexpr auto enough = static_cast<std::size_t>(NotificationCall::longestText) * 4;
    QString text =
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(std::min(utf8.size(), enough)));
    if (text.size() <= NotificationCall::longestText)
        return text;
    text.truncate(NotificationCall::longestText);
    if (text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

QString takeText(BusValues &values)
{
    QString text = bounded(values.text());
    values.next();
    return text;
}

bool replacesAnother(DBusMessage *message)
{
    DBusMessageIter iterator;
    dbus_uint32_t replaced = 0;
    if (dbus_message_iter_init(message, &iterator) && dbus_message_iter_next(&iterator))
        dbus_message_iter_get_basic(&iterator, &replaced);
    return replaced != 0;
}

NotificationCall readNotify(DBusMessage *message)
{
    BusValues values(message);
    NotificationCall call;
    call.hasMarkup = true;
    call.appName = takeText(values);
    call.replaces = replacesAnother(message);
    values.next(); // what it replaces
    values.next(); // icon
    call.title = takeText(values);
    call.body = takeText(values);
    values.next(); // actions
    call.desktopEntry = bounded(values.entry("desktop-entry").textInVariant());
    call.origin = bounded(values.entry("x-kde-origin-name").textInVariant());
    return call;
}

NotificationCall readAddNotification(DBusMessage *message)
{
    BusValues values(message);
    NotificationCall call;
    call.desktopEntry = takeText(values);
    values.next(); // the program's own name for it
    call.title = bounded(values.entry("title").textInVariant());
    call.body = bounded(values.entry("body").textInVariant());
    return call;
}

} // namespace

std::optional<NotificationCall> readNotificationCall(DBusMessage *message)
{
    NotificationCall call;
    if (dbus_message_is_method_call(message, "org.freedesktop.Notifications", "Notify") &&
        dbus_message_has_signature(message, "susssasa{sv}i"))
        call = readNotify(message);
    else if (dbus_message_is_method_call(message, "org.gtk.Notifications", "AddNotification") &&
             dbus_message_has_signature(message, "ssa{sv}"))
        call = readAddNotification(message);
    else
        return std::nullopt;
    call.sender = QString::fromUtf8(dbus_message_get_sender(message));
    return call;
}

} // namespace quillmere
