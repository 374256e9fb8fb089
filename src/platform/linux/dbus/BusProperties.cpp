#include "platform/linux/dbus/BusProperties.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDebug>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr QLatin1StringView mapSignature{"a{sv}"};

} // namespace

BusProperties::BusProperties(const QDBusConnection &bus, Place place,
                             std::function<void(const QVariantMap &)> onTold)
    : place_(std::move(place))
    , onTold_(std::move(onTold))
    , calls_(bus)
{
    QDBusConnection connection = bus;
    connection.connect(place_.owner, place_.path, bus::propertiesInterface,
                       QStringLiteral("PropertiesChanged"), QStringList(place_.interface), {}, this,
                       SLOT(propertiesChanged(QDBusMessage)));
    readAll();
}

void BusProperties::readAll()
{
    auto question = QDBusMessage::createMethodCall(
        place_.owner, place_.path, bus::propertiesInterface, QStringLiteral("GetAll"));
    question << place_.interface;
    calls_.call(question, answerLimit, [this](const BusReply &reply) {
        if (!reply) {
            if (!place_.mayBeMissing)
                qWarning("%s does not tell: %s", qUtf8Printable(place_.path),
                         qUtf8Printable(reply.error().message()));
            return;
        }
        isRead_ = true;
        onTold_(unpack<QVariantMap>(reply->value(0), mapSignature));
    });
}

void BusProperties::propertiesChanged(const QDBusMessage &message)
{
    const bool isWithoutValue = !message.arguments().value(2).toStringList().isEmpty();
    if (!isRead_ || isWithoutValue)
        return readAll();
    onTold_(unpack<QVariantMap>(message.arguments().value(1), mapSignature));
}

} // namespace quillmere
