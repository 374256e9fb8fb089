#include "platform/linux/alerts/DesktopNotifications.h"

#include "platform/Symbols.h"
#include "platform/linux/dbus/BusNames.h"

#include <QDebug>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 25s; // the server may have to start
constexpr int serversChoice = -1;
constexpr qsizetype mostRemembered = 32; // many are shown once and never replaced
enum Urgency : uchar { Normal = 1, Critical = 2 };

const QString serverName = QStringLiteral("org.freedesktop.Notifications");

QDBusMessage callOf(const char *method)
{
    return QDBusMessage::createMethodCall(serverName,
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          serverName, QString::fromLatin1(method));
}

/// Of the names every icon theme has.
QString iconOf(const QString &symbol)
{
    static constexpr std::array icons{
        std::pair{symbols::battery25, QLatin1StringView{"battery-caution"}},
    };
    for (const auto &[name, icon] : icons) {
        if (name == symbol)
            return icon;
    }
    return bus::serviceName;
}

QVariantMap hintsOf(const UserNotification &notification)
{
    const Urgency urgency = notification.isUrgent ? Critical : Normal;
    QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(static_cast<uchar>(urgency))},
                      {QStringLiteral("desktop-entry"), QString(bus::serviceName)}};
    if (notification.playsSound)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    return hints;
}

} // namespace

DesktopNotifications::DesktopNotifications(const QDBusConnection &sessionBus)
    : calls_(sessionBus)
    , server_(sessionBus, serverName, [this](const QString &) { shown_.clear(); })
{
}

void DesktopNotifications::deliver(const UserNotification &notification)
{
    calls_.call(callOf("GetCapabilities"), answerLimit,
                [this, notification](const BusReply &reply) {
                    if (!reply) {
                        qWarning("[Notifications] \"%s\" cannot be shown: %s",
                                 qUtf8Printable(notification.title),
                                 qUtf8Printable(reply.error().message()));
                        return;
                    }
                    show(notification,
                         reply->value(0).toStringList().contains(QLatin1StringView("body-markup")));
                });
}

void DesktopNotifications::show(const UserNotification &notification, bool hasMarkup)
{
    auto message = callOf("Notify");
    message << QStringLiteral("Quillmere") << numberOf(notification.identifier)
            << iconOf(notification.symbol) << notification.title
            << (hasMarkup ? notification.body.toHtmlEscaped() : notification.body) << QStringList()
            << hintsOf(notification) << serversChoice;
    calls_.call(message, answerLimit, [this, id = notification.identifier](const BusReply &reply) {
        if (reply)
            remember(id, reply->value(0).toUInt());
        else
            qWarning("[Notifications] The server refused: %s",
                     qUtf8Printable(reply.error().message()));
    });
}

uint DesktopNotifications::numberOf(const QString &identifier) const
{
    const auto found = std::ranges::find(shown_, identifier, &Shown::identifier);
    return found == shown_.cend() ? 0 : found->number;
}

void DesktopNotifications::remember(const QString &identifier, uint number)
{
    shown_.removeIf([&](const Shown &shown) { return shown.identifier == identifier; });
    shown_.append({identifier, number});
    if (shown_.size() > mostRemembered)
        shown_.removeFirst();
}

} // namespace quillmere
