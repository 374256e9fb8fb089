#include "platform/linux/dbus/DBusService.h"

#include "platform/linux/dbus/BusNames.h"

#include <QDBusMessage>
#include <QDebug>

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration openLimit = 5s;

DBusService::Role toRole(SingleInstance::Claim claim)
{
    switch (claim) {
    case SingleInstance::Claim::Ours:
        return DBusService::Role::Primary;
    case SingleInstance::Claim::Taken:
        return DBusService::Role::Secondary;
    case SingleInstance::Claim::Refused:
        break;
    }
    return DBusService::Role::NoBus;
}

} // namespace

DBusService::DBusService(RunLoop &runLoop, OpenBus openBus)
    : runLoop_(runLoop)
    , openBus_(std::move(openBus))
    , inbox_(runLoop)
    , shortcuts_(runLoop)
    , object_(inbox_, shortcuts_)
    , searchProvider_(shortcuts_)
    , runner_(shortcuts_)
    , state_(runLoop, object_)
{
    state_.onChanged = [this](const QVariantMap &changed) { announce(changed); };
}

DBusService::~DBusService() = default;

void DBusService::start(const LaunchRequest &request, std::function<void(Role)> done)
{
    request_ = request;
    done_ = std::move(done);
    runLoop_.background(owner_, openBus_,
                        [this](const QDBusConnection &connection) { useBus(connection); });
    openLimit_ = runLoop_.after(openLimit, [this] {
        qWarning("[Quillmere] The session bus does not answer; running without it");
        finish(Role::NoBus);
    });
}

void DBusService::stop(std::function<void()> done)
{
    if (!instance_ || isReleasing_)
        return runLoop_.post(owner_, std::move(done));
    isReleasing_ = true;
    instance_->release(std::move(done));
}

void DBusService::useBus(const QDBusConnection &connection)
{
    if (!done_)
        return; // too late: the program runs already, perhaps beside another one
    openLimit_.cancel();
    if (!connection.isConnected()) {
        qWarning("[Quillmere] No session bus; running without it");
        return finish(Role::NoBus);
    }
    connection_ = connection;
    connection_->registerObject(bus::objectPath, &object_, QDBusConnection::ExportAdaptors);
    connection_->registerObject(bus::searchProviderPath, &searchProvider_,
                                QDBusConnection::ExportAdaptors);
    connection_->registerObject(bus::runnerPath, &runner_, QDBusConnection::ExportAdaptors);
    watchBus();
    instance_.emplace(*connection_);
    instance_->claim(request_, [this](SingleInstance::Claim claim) { finish(toRole(claim)); });
}

void DBusService::watchBus()
{
    connection_->connect(bus::daemonName, bus::daemonPath, bus::daemonName,
                         QStringLiteral("NameLost"), this, SLOT(nameLost(QString)));
    connection_->connect({}, bus::localPath, bus::localInterface, QStringLiteral("Disconnected"),
                         this, SLOT(disconnected()));
}

void DBusService::finish(Role role)
{
    const auto done = std::exchange(done_, nullptr);
    if (!done)
        return;
    if (role != Role::Secondary && !request_.uris.isEmpty()) {
        if (const auto refusal = inbox_.open(request_.uris))
            qWarning("[Quillmere] Nothing opened: %s", qUtf8Printable(refusal->text));
    }
    done(role);
}

void DBusService::announce(const QVariantMap &changed)
{
    if (!connection_)
        return;
    auto signal = QDBusMessage::createSignal(bus::objectPath, bus::propertiesInterface,
                                             QStringLiteral("PropertiesChanged"));
    signal << QString(bus::islandInterface) << changed << QStringList();
    connection_->send(signal);
}

void DBusService::nameLost(const QString &name)
{
    if (name == bus::serviceName && !isReleasing_)
        qWarning("[Quillmere] The session bus took the name %s away", bus::serviceName.latin1());
}

void DBusService::disconnected()
{
    if (!connection_)
        return;
    qWarning("[Quillmere] The session bus is gone; running on without it");
    connection_.reset();
}

} // namespace quillmere
