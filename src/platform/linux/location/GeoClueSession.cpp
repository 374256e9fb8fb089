#include "platform/linux/location/GeoClueSession.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <cmath>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

// Both answers wait for an agent, which at the start of a session may come later than we do, and
// for the user whom the agent asks.
constexpr Duration admissionLimit = 2min;
constexpr Duration answerLimit = 10s;

constexpr QLatin1StringView serviceName{"org.freedesktop.GeoClue2"};
constexpr QLatin1StringView managerPath{"/org/freedesktop/GeoClue2/Manager"};
constexpr QLatin1StringView managerInterface{"org.freedesktop.GeoClue2.Manager"};
constexpr QLatin1StringView clientInterface{"org.freedesktop.GeoClue2.Client"};
constexpr QLatin1StringView locationInterface{"org.freedesktop.GeoClue2.Location"};

/// The service's levels, as far as weather can use them.
uint accuracyLevel(double metres)
{
    constexpr uint city = 4;
    constexpr uint neighbourhood = 5;
    constexpr double townWide = 10000;
    return metres < townWide ? neighbourhood : city;
}

QDBusMessage question(QLatin1StringView service, const QString &path, QLatin1StringView interface,
                      const char *method)
{
    return QDBusMessage::createMethodCall(service, path, interface, QString::fromLatin1(method));
}

std::optional<Location> locationIn(const QVariantMap &properties)
{
    const QVariant latitude = properties.value(QStringLiteral("Latitude"));
    const QVariant longitude = properties.value(QStringLiteral("Longitude"));
    const bool areNumbers =
        latitude.typeId() == QMetaType::Double && longitude.typeId() == QMetaType::Double;
    if (!areNumbers || !(std::abs(latitude.toDouble()) <= 90) ||
        !(std::abs(longitude.toDouble()) <= 180))
        return std::nullopt;
    return Location{latitude.toDouble(), longitude.toDouble()};
}

} // namespace

GeoClueSession::GeoClueSession(const QDBusConnection &bus, const BusOwner &service, double accuracy,
                               Events events)
    : service_(service)
    , accuracy_(accuracy)
    , events_(std::move(events))
    , calls_(bus)
{
    getClient();
}

GeoClueSession::~GeoClueSession()
{
    if (client_.isEmpty() || service_.name().isEmpty())
        return;
    auto farewell = question(serviceName, managerPath, managerInterface, "DeleteClient");
    farewell << QVariant::fromValue(QDBusObjectPath(client_));
    farewell.setAutoStartService(false);
    QDBusConnection bus = calls_.connection();
    bus.send(farewell);
}

void GeoClueSession::getClient()
{
    calls_.call(question(serviceName, managerPath, managerInterface, "CreateClient"),
                admissionLimit, [this](const BusReply &reply) {
                    if (!reply)
                        return refuse(reply.error());
                    const auto client = reply->value(0).value<QDBusObjectPath>().path();
                    if (client.isEmpty())
                        return refuse({QDBusMessage::createError(
                            QDBusError::InvalidSignature, QStringLiteral("no client was given"))});
                    setUp(client);
                });
}

void GeoClueSession::setUp(const QString &client)
{
    client_ = client;
    // By path alone: matching a well-known name would ask the bus and wait.
    QDBusConnection bus = calls_.connection();
    bus.connect({}, client_, clientInterface, QStringLiteral("LocationUpdated"), this,
                SLOT(locationUpdated(QDBusMessage)));
    set(QStringLiteral("DesktopId"), QString(bus::serviceName));
    set(QStringLiteral("RequestedAccuracyLevel"), accuracyLevel(accuracy_));
    start();
}

void GeoClueSession::set(const QString &property, const QVariant &value)
{
    auto message = question(serviceName, client_, bus::propertiesInterface, "Set");
    message << QString(clientInterface) << property << QVariant::fromValue(QDBusVariant(value));
    calls_.call(message, answerLimit, [property](const BusReply &reply) {
        if (!reply)
            qWarning("[Location] GeoClue does not take %s: %s", qUtf8Printable(property),
                     qUtf8Printable(reply.error().message()));
    });
}

void GeoClueSession::start()
{
    calls_.call(question(serviceName, client_, clientInterface, "Start"), admissionLimit,
                [this](const BusReply &reply) {
                    if (!reply)
                        return refuse(reply.error());
                    events_.onAdmitted();
                });
}

void GeoClueSession::refuse(const QDBusError &error)
{
    const auto tell = events_.onRefused; // may destroy this object
    tell(error);
}

void GeoClueSession::locationUpdated(const QDBusMessage &message)
{
    const auto location = message.arguments().value(1).value<QDBusObjectPath>().path();
    if (message.service() == service_.name() && location.size() > 1)
        read(location);
}

void GeoClueSession::read(const QString &location)
{
    auto message = question(serviceName, location, bus::propertiesInterface, "GetAll");
    message << QString(locationInterface);
    calls_.call(message, answerLimit, [this](const BusReply &reply) {
        const auto properties =
            reply ? unpack<QVariantMap>(reply->value(0), QLatin1StringView("a{sv}"))
                  : QVariantMap();
        const auto found = locationIn(properties);
        if (!found) {
            qWarning("[Location] GeoClue tells of no place on earth");
            return;
        }
        const auto tell = events_.onLocation; // may destroy this object
        tell(*found);
    });
}

} // namespace quillmere
