#include "platform/linux/tray/TrayStatusItem.h"

#include "platform/linux/dbus/BusNames.h"

#include <QCoreApplication>
#include <QDebug>

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr QLatin1StringView watcherName{"org.kde.StatusNotifierWatcher"};
constexpr QLatin1StringView watcherPath{"/StatusNotifierWatcher"};
constexpr QLatin1StringView itemPath{"/StatusNotifierItem"};
constexpr QLatin1StringView menuPath{"/MenuBar"};
constexpr auto callLimit = 10s;

// A watcher may have its name a moment before it answers.
constexpr auto firstRetryDelay = 1s;
constexpr int mostAttempts = 4;

constexpr uint doNotQueue = 4; // number of the bus protocol

QDBusMessage daemonCall(QLatin1StringView method, const QVariantList &arguments)
{
    auto message =
        QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath, bus::daemonName, method);
    message.setArguments(arguments);
    return message;
}

/// Nobody is there to be registered with: the usual case on some desktops.
bool meansNobody(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown || error.type() == QDBusError::Disconnected ||
           error.name() == QLatin1StringView("org.freedesktop.DBus.Error.NameHasNoOwner");
}

} // namespace

TrayStatusItem::TrayStatusItem(RunLoop &runLoop, const std::optional<QDBusConnection> &bus,
                               DrawIcon drawIcon)
    : runLoop_(runLoop)
    , drawIcon_(std::move(drawIcon))
    , service_(
          QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid()))
    , item_(runLoop, menuPath)
    , menu_(runLoop)
    , bus_(bus)
{
}

TrayStatusItem::~TrayStatusItem()
{
    TrayStatusItem::remove();
}

void TrayStatusItem::show(const StatusItemContent &content)
{
    if (!bus_)
        return;
    item_.setTitle(content.accessibilityDescription);
    item_.setIcon(drawIcon_(content.symbol));
    item_.onActivate = content.onActivate;
    menu_.setEntries(content.menu);
    if (!calls_)
        goOnBus();
}

void TrayStatusItem::remove()
{
    item_.onActivate = nullptr;
    menu_.setEntries({});
    if (!calls_)
        return;
    retry_.cancel();
    isOnBar_ = false;
    calls_.reset();
    listenForWatcher(false);
    bus_->send(daemonCall(QLatin1StringView("ReleaseName"), {service_}));
    bus_->unregisterObject(itemPath);
    bus_->unregisterObject(menuPath);
}

void TrayStatusItem::goOnBus()
{
    calls_.emplace(*bus_);
    bus_->registerObject(itemPath, &item_, QDBusConnection::ExportAdaptors);
    bus_->registerObject(menuPath, &menu_, QDBusConnection::ExportAdaptors);
    listenForWatcher(true);
    calls_->call(daemonCall(QLatin1StringView("RequestName"), {service_, doNotQueue}), callLimit,
                 [](const BusReply &reply) {
                     if (!reply)
                         qWarning("[StatusItem] The session bus refused the item's name: %s",
                                  qUtf8Printable(reply.error().message()));
                 });
    // The bus keeps the order, so the item has its name when the watcher hears of it.
    registerItem(1);
}

void TrayStatusItem::listenForWatcher(bool listen)
{
    const auto change =
        listen ? qOverload<const QString &, const QString &, const QString &, const QString &,
                           const QStringList &, const QString &, QObject *, const char *>(
                     &QDBusConnection::connect)
               : qOverload<const QString &, const QString &, const QString &, const QString &,
                           const QStringList &, const QString &, QObject *, const char *>(
                     &QDBusConnection::disconnect);
    ((*bus_).*change)(bus::daemonName, bus::daemonPath, bus::daemonName,
                      QStringLiteral("NameOwnerChanged"), {QString(watcherName)}, {}, this,
                      SLOT(watcherChanged(QString, QString, QString)));
}

void TrayStatusItem::registerItem(int attempt)
{
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath, watcherName,
                                                  QStringLiteral("RegisterStatusNotifierItem"));
    message << service_;
    message.setAutoStartService(false);
    calls_->call(message, callLimit, [this, attempt](const BusReply &reply) {
        isOnBar_ = static_cast<bool>(reply);
        if (!reply)
            registrationFailed(reply.error(), attempt);
    });
}

void TrayStatusItem::registrationFailed(const QDBusError &error, int attempt)
{
    if (meansNobody(error))
        return;
    if (attempt < mostAttempts) {
        retry_ = runLoop_.after(firstRetryDelay * (1 << (attempt - 1)),
                                [this, attempt] { registerItem(attempt + 1); });
        return;
    }
    qWarning("[StatusItem] The status bar did not take the item: %s",
             qUtf8Printable(error.message()));
}

void TrayStatusItem::watcherChanged(const QString & /*name*/, const QString & /*oldOwner*/,
                                    const QString &newOwner)
{
    retry_.cancel();
    isOnBar_ = false;
    if (calls_ && !newOwner.isEmpty())
        registerItem(1);
}

} // namespace quillmere
