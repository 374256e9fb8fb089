#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/dbus/DBusService.h"
#include "platform/linux/dbus/IslandProperties.h"
#include "support/BusServer.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QRect>

#include <csignal>
#include <vector>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Role = DBusService::Role;

/// Hears the announcements of the island, as a status bar would.
class Announcements : public QObject
{
    Q_OBJECT

public:
    explicit Announcements(QDBusConnection connection)
    {
        connection.connect({}, bus::objectPath, bus::propertiesInterface,
                           QStringLiteral("PropertiesChanged"), this,
                           SLOT(changed(QString, QVariantMap, QStringList)));
    }

    QList<QVariantMap> heard;

private:
    Q_SLOT void changed(const QString &interface, const QVariantMap &values, const QStringList &)
    {
        if (interface == bus::islandInterface)
            heard.append(values);
    }
};

struct Handled {
    QStringList calls;

    void attachTo(RemoteControl &remoteControl)
    {
        remoteControl.setHandlers(
            {.activate = [this] { calls.append(QStringLiteral("activate")); },
             .open =
                 [this](const QStringList &uris) {
                     calls.append(QStringLiteral("open ") + uris.join(QLatin1Char(' ')));
                 },
             .activateAction =
                 [this](const QString &action, const QVariantList &parameter) {
                     const bool known = action == QStringLiteral("start-countdown") &&
                                        parameter.value(0).typeId() == QMetaType::Int;
                     if (known)
                         calls.append(action + QString::number(parameter.at(0).toInt()));
                     return known;
                 }});
    }
};

class BusTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "BusTest";
        static char *argv[] = {name, nullptr};
        static const QCoreApplication application(argc, argv);
    }

    std::unique_ptr<DBusService> makeService()
    {
        return std::make_unique<DBusService>(runLoop_, [this] { return server_.connect(); });
    }

    Role start(DBusService &service, const LaunchRequest &request = {})
    {
        std::optional<Role> role;
        service.start(request, [&role](Role outcome) { role = outcome; });
        EXPECT_FALSE(role) << "told from within start()";
        EXPECT_TRUE(eventually([&role] { return role.has_value(); }));
        return role.value_or(Role::NoBus);
    }

    QDBusMessage send(QLatin1StringView interface, const char *method,
                      const QVariantList &arguments)
    {
        auto message = QDBusMessage::createMethodCall(bus::serviceName, bus::objectPath, interface,
                                                      QLatin1StringView(method));
        message.setArguments(arguments);
        return client_.call(message, QDBus::BlockWithGui, 10000);
    }

    QDBusMessage sendAction(const QString &action, const QVariantList &parameter)
    {
        return send(bus::applicationInterface, "ActivateAction",
                    {action, QVariant(parameter), QVariantMap()});
    }

    QVariant get(const char *property)
    {
        const auto answer =
            send(bus::propertiesInterface, "Get",
                 {QString(bus::islandInterface), QString(QLatin1StringView(property))});
        return answer.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Lets the event loop run until `condition` holds; false after 20 s.
    bool eventually(const std::function<bool()> &condition)
    {
        const Task wake = runLoop_.every(5ms, 0ms, [] {});
        const QDeadlineTimer limit(20s);
        while (!condition()) {
            if (limit.hasExpired())
                return false;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

    QtRunLoop runLoop_;
    BusServer server_;
    QDBusConnection client_ = server_.connect();
};

TEST_F(BusTest, SecondStartHandsOverToTheFirst)
{
    auto first = makeService();
    Handled handled;
    handled.attachTo(first->remoteControl());
    ASSERT_EQ(start(*first), Role::Primary);

    EXPECT_EQ(start(*makeService()), Role::Secondary);
    EXPECT_EQ(start(*makeService(), {.uris = {QStringLiteral("a:1"), QStringLiteral("b:2")},
                                     .platformData = {{QStringLiteral("activation-token"),
                                                       QStringLiteral("token")}}}),
              Role::Secondary);
    EXPECT_THAT(handled.calls,
                ElementsAre(QStringLiteral("activate"), QStringLiteral("open a:1 b:2")));

    bool released = false;
    first->stop([&released] { released = true; });
    ASSERT_TRUE(eventually([&released] { return released; }));
    EXPECT_EQ(start(*makeService()), Role::Primary) << "a start during the other's quit is lost";
}

TEST_F(BusTest, StartTakesOverFromOneThatDiesWithoutAnswering)
{
    // Has the name, but exports nothing and never answers a message: as a hung one does.
    QDBusConnection hung = server_.connect();
    class Silent : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
        {
            message.setDelayedReply(true);
            asked = true;
            return true;
        }
        bool asked = false;
    } silent;
    hung.registerVirtualObject(bus::objectPath, &silent);
    ASSERT_TRUE(hung.registerService(bus::serviceName));

    auto service = makeService();
    std::optional<Role> role;
    service->start({}, [&role](Role outcome) { role = outcome; });
    ASSERT_TRUE(eventually([&silent] { return silent.asked; }));
    const QString name = hung.name();
    hung = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
    ASSERT_TRUE(eventually([&role] { return role.has_value(); }));
    EXPECT_EQ(*role, Role::Primary);
}

TEST_F(BusTest, EarlyRequestsWaitForTheHandlersInOrder)
{
    auto service = makeService();
    ASSERT_EQ(start(*service, {.uris = {QStringLiteral("own:0")}}), Role::Primary);
    constexpr int places = 63;
    for (int number = 0; number < places; ++number) {
        const auto answer = sendAction(QStringLiteral("start-countdown"), {number});
        ASSERT_EQ(answer.type(), QDBusMessage::ReplyMessage) << number;
    }
    const auto answer = send(bus::applicationInterface, "Activate", {QVariantMap()});
    EXPECT_EQ(answer.errorName(), QStringLiteral("org.freedesktop.DBus.Error.LimitsExceeded"));

    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_TRUE(eventually([&handled] { return handled.calls.size() > places; }));
    EXPECT_EQ(handled.calls.first(), QStringLiteral("open own:0"));
    EXPECT_EQ(handled.calls.last(), QStringLiteral("start-countdown62"));
}

TEST_F(BusTest, NoRequestOvertakesThoseThatWait)
{
    RequestInbox inbox(runLoop_);
    Handled handled;
    inbox.open({QStringLiteral("a:1")});
    handled.attachTo(inbox);
    inbox.activate();
    EXPECT_THAT(handled.calls, IsEmpty()) << "called from within setHandlers()";
    ASSERT_TRUE(eventually([&handled] { return handled.calls.size() == 2; }));
    inbox.activate();
    EXPECT_THAT(handled.calls, ElementsAre(QStringLiteral("open a:1"), QStringLiteral("activate"),
                                           QStringLiteral("activate")));
}

TEST_F(BusTest, UnsuitableRequestsAreRefused)
{
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_EQ(start(*service), Role::Primary);

    const QString known = QStringLiteral("start-countdown");
    const QString tooLong(8193, QLatin1Char('u'));
    const auto sendOpen = [this](const QStringList &uris) {
        return send(bus::applicationInterface, "Open", {uris, QVariantMap()});
    };
    const std::vector<QDBusMessage> answers{
        sendAction(QStringLiteral("run-command"), {}),
        sendAction(known, {}),
        sendAction(known, {QStringLiteral("ten")}),
        sendAction(known, {1, 2}),
        sendAction(known, {QVariantMap{{QStringLiteral("minutes"), 1}}}),
        sendAction(known, {tooLong}),
        sendAction(tooLong, {}),
        sendOpen(QStringList(65, QStringLiteral("a:b"))),
        sendOpen({QStringLiteral("a:b"), tooLong}),
        sendOpen({QString(5000, QChar(u'\u20ac'))}),
    };
    for (std::size_t index = 0; index < answers.size(); ++index) {
        EXPECT_EQ(answers[index].errorName(),
                  QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"))
            << index;
        EXPECT_FALSE(answers[index].errorMessage().isEmpty());
    }
    EXPECT_THAT(handled.calls, IsEmpty());

    EXPECT_EQ(sendAction(known, {5}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(sendOpen(QStringList(64, QStringLiteral("a:b"))).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(handled.calls, SizeIs(2));
}

TEST_F(BusTest, PropertiesAreEmptyUntilPublishedAndReadOnly)
{
    auto service = makeService();
    ASSERT_EQ(start(*service), Role::Primary);
    const auto all = qdbus_cast<QVariantMap>(
        send(bus::propertiesInterface, "GetAll", {QString(bus::islandInterface)})
            .arguments()
            .value(0));
    ASSERT_EQ(all.size(), static_cast<qsizetype>(islandProperties.size()));
    EXPECT_EQ(all.value(QStringLiteral("Presentation")), QVariant(QString()));

    const std::pair<const char *, const char *> signatures[] = {
        {"NowPlaying", "a{sv}"}, {"Activities", "aa{sv}"}, {"Frame", "(iiii)"}};
    for (const auto &[property, signature] : signatures) {
        const auto value = all.value(QLatin1StringView(property)).value<QDBusArgument>();
        EXPECT_EQ(value.currentSignature(), QLatin1StringView(signature)) << property;
    }

    const auto refused = send(bus::propertiesInterface, "Set",
                              {QString(bus::islandInterface), QStringLiteral("Page"),
                               QVariant::fromValue(QDBusVariant(QStringLiteral("media")))});
    EXPECT_EQ(refused.errorName(), QStringLiteral("org.freedesktop.DBus.Error.PropertyReadOnly"));
    EXPECT_EQ(get("Page"), QVariant(QString()));
}

TEST_F(BusTest, AnnouncesOnlyChangesAndOncePerTurn)
{
    auto service = makeService();
    StatePublisher &state = service->statePublisher();
    state.publish(QStringLiteral("Page"), QStringLiteral("media"));
    ASSERT_EQ(start(*service), Role::Primary);
    Announcements announcements(client_);
    const QVariantMap hud{{QStringLiteral("level"), 0.4}, {QStringLiteral("count"), qint64{7}}};

    EXPECT_EQ(get("Page"), QVariant(QStringLiteral("media"))); // and the subscription is in place
    state.publish(QStringLiteral("Page"), QStringLiteral("media"));
    state.publish(QStringLiteral("CurrentHUD"), hud);
    state.publish(QStringLiteral("Presentation"), QStringLiteral("collapsed"));
    state.publish(QStringLiteral("Presentation"), QStringLiteral("hud"));
    ASSERT_TRUE(eventually([&announcements] { return !announcements.heard.isEmpty(); }));
    const QVariantMap first = announcements.heard.takeFirst();
    EXPECT_EQ(first.keys(),
              QStringList({QStringLiteral("CurrentHUD"), QStringLiteral("Presentation")}));
    EXPECT_EQ(first.value(QStringLiteral("Presentation")), QVariant(QStringLiteral("hud")));
    EXPECT_EQ(qdbus_cast<QVariantMap>(get("CurrentHUD")), hud);

    state.publish(QStringLiteral("CurrentHUD"), hud);
    state.publish(QStringLiteral("Activities"), QVariantList{hud, QVariantMap()});
    state.publish(QStringLiteral("Frame"), QRect(-5, 0, 300, 44));
    ASSERT_TRUE(eventually([&announcements] { return !announcements.heard.isEmpty(); }));
    EXPECT_EQ(announcements.heard.takeFirst().keys(),
              QStringList({QStringLiteral("Activities"), QStringLiteral("Frame")}));
    EXPECT_EQ(qdbus_cast<QList<QVariantMap>>(get("Activities")), QList<QVariantMap>({hud, {}}));
    EXPECT_EQ(qdbus_cast<QRect>(get("Frame")), QRect(-5, 0, 300, 44));
    EXPECT_THAT(announcements.heard, IsEmpty());
}

TEST_F(BusTest, PublishingAWrongTypeChangesNothing)
{
    auto service = makeService();
    ASSERT_EQ(start(*service), Role::Primary);
    StatePublisher &state = service->statePublisher();
    state.publish(QStringLiteral("NowPlaying"), QVariantMap{{QStringLiteral("title"), 1}});
    const std::pair<const char *, QVariant> mistakes[] = {
        {"Page", 5},
        {"Frame", QRectF(0, 0, 1, 1)},
        {"Nonsense", QString()},
        {"Activities", QVariantList{QStringLiteral("no dictionary")}},
        {"NowPlaying", QVariant()},
        {"NowPlaying", QVariantMap{{QStringLiteral("artwork"), QByteArray("png")}}},
        {"NowPlaying", QVariantMap{{QStringLiteral("nested"), QVariantList{QVariant()}}}},
    };
    for (const auto &[property, value] : mistakes)
        state.publish(QLatin1StringView(property), value);
    EXPECT_EQ(get("Page"), QVariant(QString()));
    EXPECT_EQ(qdbus_cast<QVariantMap>(get("NowPlaying")),
              QVariantMap({{QStringLiteral("title"), 1}}));
}

TEST_F(BusTest, RunsWithoutABus)
{
    server_.stop();
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    EXPECT_EQ(start(*service, {.uris = {QStringLiteral("a:1")}}), Role::NoBus);
    EXPECT_THAT(handled.calls, ElementsAre(QStringLiteral("open a:1")));
    service->statePublisher().publish(QStringLiteral("Page"), QStringLiteral("media"));
    bool stopped = false;
    service->stop([&stopped] { stopped = true; });
    EXPECT_TRUE(eventually([&stopped] { return stopped; }));
}

int goneLines = 0; // counted in a message handler, which is a plain function

TEST_F(BusTest, OutlivesTheBus)
{
    auto service = makeService();
    ASSERT_EQ(start(*service), Role::Primary);
    goneLines = 0;
    const auto former =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            goneLines += text.contains(QLatin1StringView("session bus is gone")) ? 1 : 0;
        });
    server_.stop();
    EXPECT_TRUE(eventually([] { return goneLines > 0; }));
    for (int turn = 0; turn < 3; ++turn) {
        service->statePublisher().publish(QStringLiteral("Page"), QString::number(turn));
        bool turned = false;
        runLoop_.post([&turned] { turned = true; });
        EXPECT_TRUE(eventually([&turned] { return turned; }));
    }
    bool stopped = false;
    service->stop([&stopped] { stopped = true; });
    EXPECT_TRUE(eventually([&stopped] { return stopped; }));
    qInstallMessageHandler(former);
    EXPECT_EQ(goneLines, 1);
}

/// The command-line client, run against the private bus.
class ControlTest : public BusTest
{
protected:
    void launch(QProcess &process, const QStringList &arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), server_.address());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLMERECTL), arguments);
    }

    struct Result {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };

    Result run(const QStringList &arguments)
    {
        QProcess process;
        launch(process, arguments);
        if (!eventually([&process] { return process.state() == QProcess::NotRunning; }))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
};

TEST_F(ControlTest, SaysWhatIsWrong)
{
    const struct {
        QStringList arguments;
        int code;
        const char *error;
    } cases[] = {
        {{}, 2, "--help"},
        {{QStringLiteral("dance")}, 2, "dance"},
        {{QStringLiteral("action")}, 2, "name"},
        {{QStringLiteral("get"), QStringLiteral("Pages")}, 2, "Pages"},
        {{QStringLiteral("watch"), QStringLiteral("Page"), QStringLiteral("Frame")}, 2, "one"},
        {{QStringLiteral("get"), QStringLiteral("Page")}, 1, "not running"},
        {{QStringLiteral("action"), QStringLiteral("quit")}, 1, "not running"},
    };
    for (const auto &[arguments, code, error] : cases) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, code) << error;
        EXPECT_TRUE(result.error.contains(error)) << result.error.constData();
        EXPECT_TRUE(result.out.isEmpty());
    }
}

TEST_F(ControlTest, NeverStartsQuillmere)
{
    const QTemporaryDir directory;
    const QString trace = directory.filePath(QStringLiteral("started"));
    server_.offer(bus::serviceName, QStringLiteral("/bin/touch ") + trace);
    EXPECT_EQ(run({QStringLiteral("get")}).code, 1);
    EXPECT_EQ(run({QStringLiteral("action"), QStringLiteral("quit")}).code, 1);
    EXPECT_FALSE(QFile::exists(trace));

    // The trace would have been left: one who lets the bus start it does.
    const auto ping = QDBusMessage::createMethodCall(bus::serviceName, bus::objectPath,
                                                     QStringLiteral("org.freedesktop.DBus.Peer"),
                                                     QStringLiteral("Ping"));
    client_.send(ping);
    EXPECT_TRUE(eventually([&trace] { return QFile::exists(trace); }));
}

TEST_F(ControlTest, ReadsAndActs)
{
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_EQ(start(*service), Role::Primary);
    StatePublisher &state = service->statePublisher();
    const QVariantMap hud{{QStringLiteral("level"), 0.4},
                          {QStringLiteral("title"), QStringLiteral("L\u00e4rm \"1\"\n")},
                          {QStringLiteral("tags"), QVariantList{true, QVariantMap()}}};
    state.publish(QStringLiteral("CurrentHUD"), hud);
    state.publish(QStringLiteral("Activities"), QVariantList{hud});
    state.publish(QStringLiteral("Frame"), QRect(1, 2, 3, 4));

    const QByteArray json = R"({"level":0.4,"tags":[true,{}],"title":"Lärm \"1\"\n"})";
    const auto read = [this](const char *property) {
        return run({QStringLiteral("get"), QLatin1StringView(property)}).out;
    };
    EXPECT_EQ(read("CurrentHUD"), json + '\n');
    EXPECT_EQ(read("Activities"), '[' + json + "]\n");
    EXPECT_EQ(read("Frame"), "[1,2,3,4]\n");
    EXPECT_EQ(read("Page"), "\"\"\n");
    const Result all = run({QStringLiteral("get")});
    EXPECT_TRUE(all.out.startsWith(QByteArray("{\"Activities\":[").append(json)))
        << all.out.constData();
    EXPECT_EQ(all.out.count('\n'), 1);

    const QString known = QStringLiteral("start-countdown");
    EXPECT_EQ(run({QStringLiteral("action"), known, QStringLiteral("10")}).code, 0);
    EXPECT_EQ(run({QStringLiteral("action"), known, QStringLiteral("ten")}).code, 1);
    EXPECT_THAT(handled.calls, ElementsAre(QStringLiteral("start-countdown10")));
}

TEST_F(ControlTest, WatchesAcrossRestarts)
{
    QProcess watch;
    launch(watch, {QStringLiteral("watch"), QStringLiteral("Page")});
    const auto nextLine = [this, &watch] {
        eventually([&watch] { return watch.canReadLine(); });
        return watch.readLine();
    };
    for (const char *page : {"media", "weather"}) {
        auto service = makeService();
        service->statePublisher().publish(QStringLiteral("Page"), QLatin1StringView(page));
        ASSERT_EQ(start(*service), Role::Primary);
        EXPECT_EQ(nextLine(), "{\"Page\":\"" + QByteArray(page) + "\"}\n");
        auto forged = QDBusMessage::createSignal(bus::objectPath, bus::propertiesInterface,
                                                 QStringLiteral("PropertiesChanged"));
        forged << QString(bus::islandInterface)
               << QVariantMap{{QStringLiteral("Page"), QStringLiteral("forged")}} << QStringList();
        EXPECT_TRUE(client_.send(forged));
        EXPECT_EQ(get("Page"), QVariant(QLatin1StringView(page))); // so the forged one is out
        service->statePublisher().publish(QStringLiteral("Presentation"), QStringLiteral("hud"));
        service->statePublisher().publish(QStringLiteral("Page"), QStringLiteral("timer"));
        EXPECT_EQ(nextLine(), "{\"Page\":\"timer\"}\n");
        bool stopped = false;
        service->stop([&stopped] { stopped = true; });
        ASSERT_TRUE(eventually([&stopped] { return stopped; }));
    }
    EXPECT_EQ(kill(static_cast<pid_t>(watch.processId()), SIGTERM), 0);
    ASSERT_TRUE(eventually([&watch] { return watch.state() == QProcess::NotRunning; }));
    EXPECT_EQ(watch.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(watch.exitCode(), 0);
    EXPECT_EQ(watch.readAllStandardError(), QByteArray());
}

} // namespace

} // namespace quillmere

#include "BusTest.moc"
