#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/tray/TrayStatusItem.h"
#include "support/BusServer.h"
#include "support/Eventually.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

/// A status bar: keeps the items that register, until their names go away.
class Watcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit Watcher(const QDBusConnection &connection)
        : connection_(connection)
        , leaving_({}, connection, QDBusServiceWatcher::WatchForUnregistration)
    {
        connect(&leaving_, &QDBusServiceWatcher::serviceUnregistered, this,
                [this](const QString &service) { items.removeAll(service); });
        connection_.registerService(watcherName);
    }
    ~Watcher() override
    {
        connection_.unregisterObject(watcherPath);
        connection_.unregisterService(watcherName);
    }

    void beginToAnswer()
    {
        connection_.registerObject(watcherPath, this, QDBusConnection::ExportAllSlots);
    }

    QStringList items;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        leaving_.addWatchedService(service);
        items.append(service);
    }

private:
    QDBusConnection connection_;
    QDBusServiceWatcher leaving_;
};

class TrayTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "TrayTest";
        static char *argv[] = {name, nullptr};
        static const QCoreApplication application(argc, argv);
    }

    TrayTest()
    {
        const auto write = [this](const char *name) {
            return [this, name] { clicks_.append(QLatin1StringView(name)); };
        };
        content_ = {.symbol = QStringLiteral("good"),
                    .accessibilityDescription = QStringLiteral("Quillmere"),
                    .menu = {{QStringLiteral("Save_As"), u's', write("save")},
                             {{}, {}, {}, true},
                             {QStringLiteral("Quit"), {}, write("quit")}},
                    .onActivate = write("activate")};
    }

    static TrayIcon drawIcon(const QString &symbol)
    {
        if (symbol != QStringLiteral("good"))
            return {};
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(QColor(0x11, 0x22, 0x33));
        return {QStringLiteral("name"), QStringLiteral("/path"), {image, QImage()}};
    }

    std::unique_ptr<Watcher> startWatcher()
    {
        auto watcher = std::make_unique<Watcher>(host_);
        watcher->beginToAnswer();
        return watcher;
    }

    QDBusMessage ask(const QString &path, const QString &interface, const char *method,
                     const QVariantList &arguments = {})
    {
        auto message =
            QDBusMessage::createMethodCall(service_, path, interface, QLatin1StringView(method));
        message.setArguments(arguments);
        return host_.call(message, QDBus::BlockWithGui, 10000);
    }

    QDBusMessage askMenu(const char *method, const QVariantList &arguments)
    {
        return ask(QStringLiteral("/MenuBar"), menuInterface, method, arguments);
    }

    QVariantMap itemProperties()
    {
        const auto answer = ask(QStringLiteral("/StatusNotifierItem"), bus::propertiesInterface,
                                "GetAll", {itemInterface});
        return qdbus_cast<QVariantMap>(answer.arguments().value(0));
    }

    QtRunLoop runLoop_;
    BusServer server_;
    QDBusConnection host_ = server_.connect();
    QDBusConnection own_ = server_.connect();
    QStringList clicks_;
    StatusItemContent content_;
    const QString service_ =
        QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid());
    TrayStatusItem item_{runLoop_, own_, &drawIcon};
};

TEST_F(TrayTest, RegistersWithEveryWatcherThatComes)
{
    item_.show(content_);
    EXPECT_FALSE(item_.isOnBar());
    for (int turn = 0; turn < 2; ++turn) { // late, and again after a restart
        const auto watcher = startWatcher();
        ASSERT_TRUE(eventually([&watcher] { return !watcher->items.isEmpty(); })) << turn;
        EXPECT_THAT(watcher->items, ElementsAre(service_));
        EXPECT_TRUE(host_.interface()->isServiceRegistered(service_));
        EXPECT_TRUE(eventually([this] { return item_.isOnBar(); }));
    }
    EXPECT_TRUE(eventually([this] { return !item_.isOnBar(); })) << "the last watcher went";
    Watcher slow(host_); // has its name before it answers
    bool refused = false;
    const Task wait = runLoop_.after(200ms, [&refused] { refused = true; });
    ASSERT_TRUE(eventually([&refused] { return refused; }));
    slow.beginToAnswer();
    ASSERT_TRUE(eventually([&slow] { return !slow.items.isEmpty(); }));
    EXPECT_TRUE(
        host_.interface()->isServiceRegistered(service_)); // and the watch for its end is set

    item_.remove();
    EXPECT_TRUE(eventually([&slow] { return slow.items.isEmpty(); }));
    EXPECT_EQ(askMenu("AboutToShow", {0}).type(), QDBusMessage::ErrorMessage);
    item_.show(content_);
    EXPECT_TRUE(eventually([&slow] { return !slow.items.isEmpty(); }));
}

TEST_F(TrayTest, TellsHostsWhatToDraw)
{
    const auto watcher = startWatcher();
    item_.show(content_);
    ASSERT_TRUE(eventually([&watcher] { return !watcher->items.isEmpty(); }));
    QVariantMap properties = itemProperties();
    const std::pair<const char *, const char *> texts[] = {
        {"Title", "Quillmere"}, {"Category", "ApplicationStatus"}, {"Status", "Active"},
        {"IconName", "name"},   {"IconThemePath", "/path"},
    };
    for (const auto &[name, text] : texts)
        EXPECT_EQ(properties.value(QLatin1StringView(name)), QString::fromLatin1(text)) << name;
    EXPECT_EQ(properties.value(QStringLiteral("Menu")).value<QDBusObjectPath>().path(),
              QStringLiteral("/MenuBar"));
    const auto pixmap = properties.value(QStringLiteral("IconPixmap")).value<QDBusArgument>();
    EXPECT_EQ(pixmap.currentSignature(), QStringLiteral("a(iiay)"));
    const auto pixmaps = qdbus_cast<TrayPixmaps>(pixmap);
    ASSERT_EQ(pixmaps.size(), 1);
    EXPECT_EQ(pixmaps[0].width, 3);
    EXPECT_EQ(pixmaps[0].pixels, QByteArray::fromHex("ff112233").repeated(6));
    const auto toolTip = properties.value(QStringLiteral("ToolTip")).value<QDBusArgument>();
    EXPECT_EQ(toolTip.currentSignature(), QStringLiteral("(sa(iiay)ss)"));

    content_.symbol = QStringLiteral("unknown");
    item_.show(content_);
    properties = itemProperties();
    EXPECT_EQ(properties.value(QStringLiteral("IconName")), QString());
    EXPECT_THAT(qdbus_cast<TrayPixmaps>(properties.value(QStringLiteral("IconPixmap"))), IsEmpty());
}

TEST_F(TrayTest, ShowsItsMenuAndRunsWhatIsClicked)
{
    item_.show(content_);
    const auto answer = askMenu("GetLayout", {0, -1, QStringList()});
    ASSERT_EQ(answer.signature(), QStringLiteral("u(ia{sv}av)"))
        << qPrintable(answer.errorMessage());
    const auto root = qdbus_cast<TrayMenuLayout>(answer.arguments().at(1));
    QStringList shown;
    for (const QVariant &child : root.children) {
        const auto layout = qdbus_cast<TrayMenuLayout>(child);
        const auto shortcut = layout.properties.value(QStringLiteral("shortcut"));
        shown.append(QString::number(layout.id) +
                     layout.properties.value(QStringLiteral("type")).toString() +
                     layout.properties.value(QStringLiteral("label")).toString());
        for (const QStringList &keys : qdbus_cast<TrayShortcuts>(shortcut))
            shown.append(keys.join(u'+'));
    }
    EXPECT_EQ(shown.join(u'|'), QStringLiteral("1Save__As|Control+s|2separator|3Quit"));

    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    askMenu("Event", {1, QStringLiteral("clicked"), nothing, 0U});
    askMenu("Event", {3, QStringLiteral("hovered"), nothing, 0U});
    askMenu("Event", {2, QStringLiteral("clicked"), nothing, 0U});
    const TrayMenuEvents group{{3, QStringLiteral("clicked"), QDBusVariant(0), 0},
                               {77, QStringLiteral("clicked"), QDBusVariant(0), 0}};
    const auto errors = askMenu("EventGroup", {QVariant::fromValue(group)});
    ASSERT_EQ(errors.signature(), QStringLiteral("ai")) << qPrintable(errors.errorMessage());
    EXPECT_EQ(qdbus_cast<QList<int>>(errors.arguments().value(0)), QList<int>{77});
    ask(QStringLiteral("/StatusNotifierItem"), itemInterface, "Activate", {0, 0});
    EXPECT_TRUE(eventually([this] { return clicks_.size() >= 3; }));
    EXPECT_THAT(clicks_, ElementsAre(QStringLiteral("save"), QStringLiteral("quit"),
                                     QStringLiteral("activate")));
}

TEST_F(TrayTest, BadCallersGetErrorsAndChangeNothing)
{
    item_.show(content_);
    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    const TrayMenuEvent click{1, QStringLiteral("clicked"), QDBusVariant(0), 0};
    constexpr int least = std::numeric_limits<int>::min();
    const std::pair<const char *, QVariantList> refused[] = {
        {"GetLayout", {4, -1, QStringList()}},
        {"GetLayout", {least, 0, QStringList()}},
        {"GetProperty", {-1, QStringLiteral("label")}},
        {"GetProperty", {1, QStringLiteral("nonsense")}},
        {"Event", {4, QStringLiteral("clicked"), nothing, 0U}},
        {"Event", {QStringLiteral("1"), QStringLiteral("clicked"), nothing, 0U}},
        {"EventGroup", {QVariant::fromValue(TrayMenuEvents(100, click))}},
        {"EventGroup", {QVariant::fromValue(TrayMenuEvents{{least, {}, QDBusVariant(0), 0}})}},
        {"AboutToShow", {4}},
    };
    for (const auto &[method, arguments] : refused) {
        EXPECT_EQ(askMenu(method, arguments).type(), QDBusMessage::ErrorMessage) << method;
    }
    const QList<int> ids = QList<int>(100000, 1) + QList<int>{-1, 4, 3};
    const auto group = askMenu("GetGroupProperties",
                               {QVariant::fromValue(ids), QStringList{QStringLiteral("label")}});
    EXPECT_EQ(group.signature(), QStringLiteral("a(ia{sv})"));
    EXPECT_EQ(qdbus_cast<TrayMenuProperties>(group.arguments().value(0)).size(), 2);
    EXPECT_THAT(clicks_, IsEmpty());
}

TEST_F(TrayTest, NamesAnIconOnlyWhereHostsWillFindIt)
{
    const QTemporaryDir data;
    const QString folder = QStringLiteral("quillmere/icons/hicolor/scalable/status");
    ASSERT_TRUE(QDir(data.path()).mkpath(folder));
    QFile file(data.filePath(folder + QStringLiteral("/here.svg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray former = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_DIRS", data.path().toLocal8Bit());
    EXPECT_EQ(installedTrayIcon(QStringLiteral("here")).themePath,
              data.filePath(QStringLiteral("quillmere/icons")));
    EXPECT_EQ(installedTrayIcon(QStringLiteral("there")).name, QString());
    EXPECT_EQ(installedTrayIcon({}).name, QString());
    qputenv("XDG_DATA_DIRS", former);
}

TEST_F(TrayTest, DoesWithoutABus)
{
    TrayStatusItem none(runLoop_, std::nullopt, &drawIcon);
    none.show(content_);
    none.remove();
    item_.show(content_);
    server_.stop();
    item_.show(content_);
    item_.remove();
}

} // namespace

} // namespace quillmere

#include "TrayTest.moc"
