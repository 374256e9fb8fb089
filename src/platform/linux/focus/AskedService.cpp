#include "platform/linux/focus/AskedService.h"

#include <QDBusVariant>
#include <QDebug>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;

} // namespace

FocusQuestion swayNotificationCenter()
{
    return {.teller = QLatin1StringView("SwayNC"),
            .service = QLatin1StringView("org.erikreider.swaync.cc"),
            .path = QLatin1StringView("/org/erikreider/swaync/cc"),
            .method = QLatin1StringView("GetDnd"),
            .arguments = {},
            .signalNames = {QStringLiteral("Subscribe"), QStringLiteral("SubscribeV2")}};
}

FocusQuestion xfceNotifications()
{
    return {
        .teller = QLatin1StringView("Xfce"),
        .service = QLatin1StringView("org.xfce.Xfconf"),
        .path = QLatin1StringView("/org/xfce/Xfconf"),
        .method = QLatin1StringView("GetProperty"),
        .arguments = {QStringLiteral("xfce4-notifyd"), QStringLiteral("/do-not-disturb")},
        .signalNames = {QStringLiteral("PropertyChanged"), QStringLiteral("PropertyRemoved")},
        .errorOfNotSet = QLatin1StringView("org.xfce.Xfconf.Error.PropertyNotFound"),
    };
}

AskedService::AskedService(const QDBusConnection &sessionBus, FocusQuestion question)
    : question_(std::move(question))
    , calls_(sessionBus)
    , service_(sessionBus, question_.service, [this](const QString &) {
        tell(std::nullopt);
        ask();
    })
{
    // Without a sender, since the library waits for the bus to learn who has a name.
    QDBusConnection bus = sessionBus;
    for (const QString &name : question_.signalNames)
        bus.connect({}, question_.path, question_.service, name, question_.arguments, {}, this,
                    SLOT(signalled(QDBusMessage)));
}

void AskedService::signalled(const QDBusMessage &message)
{
    if (message.service() == service_.name())
        ask();
}

void AskedService::ask()
{
    const QString owner = service_.name();
    if (owner.isEmpty())
        return;
    auto question =
        QDBusMessage::createMethodCall(owner, question_.path, question_.service, question_.method);
    for (const QString &argument : question_.arguments)
        question << argument;
    calls_.call(question, answerLimit, [this, owner](const BusReply &reply) {
        if (owner == service_.name())
            take(reply);
    });
}

void AskedService::take(const BusReply &reply)
{
    if (!reply) {
        if (reply.error().name() == question_.errorOfNotSet)
            return tell(FocusReport{question_.teller, false});
        qWarning("[Notifications] %s does not tell of Do Not Disturb: %s", question_.teller.data(),
                 qUtf8Printable(reply.error().message()));
        return;
    }
    QVariant value = reply->value(0);
    if (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    if (value.metaType() == QMetaType::fromType<bool>())
        tell(FocusReport{question_.teller, value.toBool()});
    else
        qWarning() << "[Notifications] Ignored as Do Not Disturb of" << question_.teller << ":"
                   << value;
}

} // namespace quillmere
