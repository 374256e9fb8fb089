#include "platform/linux/dbus/SingleInstance.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDebug>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr Duration releaseLimit = 1s;

// Numbers of the bus protocol.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;
constexpr uint nameExists = 3;

QDBusMessage daemonCall(QLatin1StringView method, const QVariantList &arguments)
{
    auto message =
        QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath, bus::daemonName, method);
    message.setArguments(arguments);
    return message;
}

QDBusMessage handOverCall(const LaunchRequest &request)
{
    const bool open = !request.uris.isEmpty();
    auto message = QDBusMessage::createMethodCall(
        bus::serviceName, bus::objectPath, bus::applicationInterface,
        open ? QLatin1StringView("Open") : QLatin1StringView("Activate"));
    if (open)
        message << request.uris;
    message << request.platformData;
    // The first may just have quit: this start takes its place then, rather than a third.
    message.setAutoStartService(false);
    return message;
}

SingleInstance::Claim toClaim(const BusReply &reply)
{
    using Claim = SingleInstance::Claim;
    if (!reply) {
        qWarning("[Quillmere] The session bus refused the name: %s",
                 qUtf8Printable(reply.error().message()));
        return Claim::Refused;
    }
    const uint answer = reply->value(0).toUInt();
    if (answer == primaryOwner || answer == alreadyOwner)
        return Claim::Ours;
    return answer == nameExists ? Claim::Taken : Claim::Refused;
}

} // namespace

SingleInstance::SingleInstance(const QDBusConnection &connection)
    : calls_(connection)
{
}

void SingleInstance::claim(const LaunchRequest &request, std::function<void(Claim)> done)
{
    requestName([this, request, done = std::move(done)](Claim claim) {
        if (claim == Claim::Taken)
            handOver(request, done);
        else
            done(claim);
    });
}

void SingleInstance::release(std::function<void()> done)
{
    calls_.call(daemonCall(QLatin1StringView("ReleaseName"), {QString(bus::serviceName)}),
                releaseLimit, [done = std::move(done)](const BusReply &) { done(); });
}

void SingleInstance::requestName(std::function<void(Claim)> done)
{
    calls_.call(
        daemonCall(QLatin1StringView("RequestName"), {QString(bus::serviceName), doNotQueue}),
        answerLimit, [done = std::move(done)](const BusReply &reply) { done(toClaim(reply)); });
}

void SingleInstance::handOver(const LaunchRequest &request, std::function<void(Claim)> done)
{
    calls_.call(handOverCall(request), answerLimit,
                [this, done = std::move(done)](const BusReply &reply) {
                    if (reply)
                        return done(Claim::Taken);
                    qWarning("[Quillmere] The running Quillmere did not take the request: %s",
                             qUtf8Printable(reply.error().message()));
                    // It may have quit meanwhile; if it lives, the answer is the same as before.
                    requestName(done);
                });
}

} // namespace quillmere
