#include "ctl/IslandClient.h"

#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/dbus/LaunchRequest.h"

#include <QCoreApplication>
#include <QDBusArgument>

namespace quillmere {

namespace {

constexpr int answerLimitMilliseconds = 5000;

QDBusMessage quillmereCall(QLatin1StringView interface, QLatin1StringView method)
{
    auto message =
        QDBusMessage::createMethodCall(bus::serviceName, bus::objectPath, interface, method);
    message.setAutoStartService(false);
    return message;
}

} // namespace

QDBusMessage actionMessage(const QString &action, const QVariantList &parameter)
{
    auto message = quillmereCall(bus::applicationInterface, QLatin1StringView("ActivateAction"));
    message.setArguments({action, QVariant(parameter), platformDataFromEnvironment()});
    return message;
}

QDBusMessage performMessage(const QString &intent, const QVariantMap &parameters)
{
    auto message = quillmereCall(bus::shortcutsInterface, QLatin1StringView("Perform"));
    message << intent << parameters;
    return message;
}

QDBusMessage getMessage(const QString &property)
{
    auto message = quillmereCall(bus::propertiesInterface, QLatin1StringView("Get"));
    message << QString(bus::islandInterface) << property;
    return message;
}

QDBusMessage getAllMessage()
{
    auto message = quillmereCall(bus::propertiesInterface, QLatin1StringView("GetAll"));
    message << QString(bus::islandInterface);
    return message;
}

QVariant toParameter(const QString &text)
{
    bool isInteger = false;
    const int number = text.toInt(&isInteger);
    return isInteger ? QVariant(number) : QVariant(text);
}

BusReply ask(const QDBusConnection &bus, const QDBusMessage &message)
{
    const QDBusMessage answer = bus.call(message, QDBus::Block, answerLimitMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return tl::unexpected(QDBusError(answer));
    return answer.arguments();
}

QVariantMap toProperties(const QVariantList &answer)
{
    return qdbus_cast<QVariantMap>(answer.value(0));
}

bool isNotRunning(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown ||
           error.name() == QLatin1StringView("org.freedesktop.DBus.Error.NameHasNoOwner");
}

QString describe(const QDBusError &error)
{
    if (isNotRunning(error))
        return QCoreApplication::translate("quillmerectl", "Quillmere is not running");
    return error.message();
}

} // namespace quillmere
