#include "platform/linux/shortcuts/PortalRequest.h"

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 25s;
constexpr uint succeeded = 0;
constexpr QLatin1StringView mapSignature{"a{sv}"};

QString nextToken()
{
    static int count = 0;
    return QStringLiteral("quillmere%1").arg(++count);
}

/// Where the outcome will be told: known beforehand, so that it cannot be missed.
QString requestPath(const QDBusConnection &bus, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection &bus, QDBusMessage call, QVariantMap options,
                             std::function<void(const Result &)> done)
    : done_(std::move(done))
    , calls_(bus)
{
    const QString token = nextToken();
    QDBusConnection connection = bus;
    connection.connect(call.service(), requestPath(bus, token),
                       QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"),
                       this, SLOT(responded(QDBusMessage)));
    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    calls_.call(call, answerLimit, [this](const BusReply &reply) {
        if (!reply)
            finish(tl::unexpected(reply.error().message()));
    });
}

void PortalRequest::responded(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.value(0).toUInt() == succeeded)
        finish(unpack<QVariantMap>(arguments.value(1), mapSignature));
    else
        finish(tl::unexpected(QStringLiteral("it was turned down")));
}

void PortalRequest::finish(const Result &result)
{
    if (const auto done = std::exchange(done_, nullptr))
        done(result);
}

} // namespace quillmere
