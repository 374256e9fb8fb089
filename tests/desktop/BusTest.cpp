#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/dbus/DBusService.h"
#include "platform/linux/dbus/IslandProperties.h"
#include "support/BusServer.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QRect>

#include <vector>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

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
        connection.connect({}, bus::objectPath, bus::propertiesInterface, u"PropertiesChanged"_s,
                           this, SLOT(changed(QString, QVariantMap, QStringList)));
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
            {.activate = [this] { calls.append(u"activate"_s); },
             .open =
                 [this](const QStringList &uris) {
                     calls.append(u"open "_s + uris.join(QLatin1Char(' ')));
                 },
             .activateAction =
                 [this](const QString &action, const QVariantList &parameter) {
                     const bool known = action == u"start-countdown"_s &&
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
        const QVariantList which{QString(bus::islandInterface), QString::fromLatin1(property)};
        const auto answer = send(bus::propertiesInterface, "Get", which);
        return answer.arguments().value(0).value<QDBusVariant>().variant();
    }

    void stop(DBusService &service)
    {
        bool stopped = false;
        service.stop([&stopped] { stopped = true; });
        ASSERT_TRUE(eventually([&stopped] { return stopped; }));
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
    EXPECT_EQ(start(*makeService(), {.uris = {u"a:1"_s, u"b:2"_s},
                                     .platformData = {{u"activation-token"_s, u"token"_s}}}),
              Role::Secondary);
    EXPECT_THAT(handled.calls, ElementsAre(u"activate"_s, u"open a:1 b:2"_s));

    stop(*first);
    EXPECT_EQ(start(*makeService()), Role::Primary) << "a start during the other's quit is lost";
}

TEST_F(BusTest, StartTakesOverFromOneThatDiesWithoutAnswering)
{
    // Has the name, but never answers a message: as a hung one does.
    QDBusConnection hung = server_.connect();
    class Silent : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
        {
            message.setDelayedReply(true);
            return asked = true;
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
    ASSERT_EQ(start(*service, {.uris = {u"own:0"_s}}), Role::Primary);
    constexpr int places = 63;
    for (int number = 0; number < places; ++number) {
        const auto answer = sendAction(u"start-countdown"_s, {number});
        ASSERT_EQ(answer.type(), QDBusMessage::ReplyMessage) << number;
    }
    const auto answer = send(bus::applicationInterface, "Activate", {QVariantMap()});
    EXPECT_EQ(answer.errorName(), u"org.freedesktop.DBus.Error.LimitsExceeded"_s);

    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_TRUE(eventually([&handled] { return handled.calls.size() > places; }));
    EXPECT_EQ(handled.calls.first(), u"open own:0"_s);
    EXPECT_EQ(handled.calls.last(), u"start-countdown62"_s);
}

TEST_F(BusTest, NoRequestOvertakesThoseThatWait)
{
    RequestInbox inbox(runLoop_);
    Handled handled;
    inbox.open({u"a:1"_s});
    handled.attachTo(inbox);
    inbox.activate();
    EXPECT_THAT(handled.calls, IsEmpty()) << "called from within setHandlers()";
    ASSERT_TRUE(eventually([&handled] { return handled.calls.size() == 2; }));
    EXPECT_THAT(handled.calls, ElementsAre(u"open a:1"_s, u"activate"_s));
}

TEST_F(BusTest, UnsuitableRequestsAreRefused)
{
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_EQ(start(*service), Role::Primary);

    const QString known = u"start-countdown"_s;
    const QString tooLong(8193, u'u');
    const auto sendOpen = [this](const QStringList &uris) {
        return send(bus::applicationInterface, "Open", {uris, QVariantMap()});
    };
    const std::vector<QDBusMessage> answers{
        sendAction(u"run-command"_s, {}),
        sendAction(known, {}),
        sendAction(known, {u"ten"_s}),
        sendAction(known, {1, 2}),
        sendAction(known, {QVariantMap{{u"minutes"_s, 1}}}),
        sendAction(known, {tooLong}),
        sendAction(tooLong, {}),
        sendOpen(QStringList(65, u"a:b"_s)),
        sendOpen({u"a:b"_s, tooLong}),
        sendOpen({QString(5000, u'\u20ac')}),
    };
    for (const auto &answer : answers) {
        EXPECT_EQ(answer.errorName(), u"org.freedesktop.DBus.Error.InvalidArgs"_s)
            << &answer - answers.data();
        EXPECT_FALSE(answer.errorMessage().isEmpty());
    }
    EXPECT_THAT(handled.calls, IsEmpty());

    EXPECT_EQ(sendAction(known, {5}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(sendOpen(QStringList(64, u"a:b"_s)).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(handled.calls, SizeIs(2));
}

TEST_F(BusTest, PropertiesKeepTheirTypesWhoeverSetsThem)
{
    auto service = makeService();
    ASSERT_EQ(start(*service), Role::Primary);
    StatePublisher &state = service->statePublisher();
    const QVariantList island{QString(bus::islandInterface)};
    const auto all = qdbus_cast<QVariantMap>(
        send(bus::propertiesInterface, "GetAll", island).arguments().value(0));
    ASSERT_EQ(all.size(), static_cast<qsizetype>(islandProperties.size()));
    EXPECT_EQ(all.value(u"Presentation"_s), QVariant(QString()));
    const std::pair<QString, QString> signatures[] = {
        {u"NowPlaying"_s, u"a{sv}"_s}, {u"Activities"_s, u"aa{sv}"_s}, {u"Frame"_s, u"(iiii)"_s}};
    for (const auto &[property, signature] : signatures)
        EXPECT_EQ(all.value(property).value<QDBusArgument>().currentSignature(), signature);

    const auto media = QVariant::fromValue(QDBusVariant(u"media"_s));
    EXPECT_EQ(
        send(bus::propertiesInterface, "Set", island + QVariantList{u"Page"_s, media}).errorName(),
        u"org.freedesktop.DBus.Error.PropertyReadOnly"_s);

    state.publish(u"NowPlaying"_s, QVariantMap{{u"title"_s, 1}});
    const std::pair<QString, QVariant> mistakes[] = {
        {u"Page"_s, 5},
        {u"Frame"_s, QRectF(0, 0, 1, 1)},
        {u"Nonsense"_s, QString()},
        {u"Activities"_s, QVariantList{u"no dictionary"_s}},
        {u"NowPlaying"_s, QVariant()},
        {u"NowPlaying"_s, QVariantMap{{u"artwork"_s, QByteArray("png")}}},
        {u"NowPlaying"_s, QVariantMap{{u"nested"_s, QVariantList{QVariant()}}}},
    };
    for (const auto &[property, value] : mistakes)
        state.publish(property, value);
    EXPECT_EQ(get("Page"), QVariant(QString()));
    EXPECT_EQ(qdbus_cast<QVariantMap>(get("NowPlaying")), QVariantMap({{u"title"_s, 1}}));
}

TEST_F(BusTest, AnnouncesOnlyChangesAndOncePerTurn)
{
    auto service = makeService();
    StatePublisher &state = service->statePublisher();
    state.publish(u"Page"_s, u"media"_s);
    ASSERT_EQ(start(*service), Role::Primary);
    Announcements announcements(client_);
    const QVariantMap hud{{u"level"_s, 0.4}, {u"count"_s, qint64{7}}};

    EXPECT_EQ(get("Page"), QVariant(u"media"_s)); // and the subscription is in place
    state.publish(u"Page"_s, u"media"_s);
    state.publish(u"CurrentHUD"_s, hud);
    state.publish(u"Presentation"_s, u"collapsed"_s);
    state.publish(u"Presentation"_s, u"hud"_s);
    ASSERT_TRUE(eventually([&announcements] { return !announcements.heard.isEmpty(); }));
    const QVariantMap first = announcements.heard.takeFirst();
    EXPECT_EQ(first.keys(), QStringList({u"CurrentHUD"_s, u"Presentation"_s}));
    EXPECT_EQ(first.value(u"Presentation"_s), QVariant(u"hud"_s));
    EXPECT_EQ(qdbus_cast<QVariantMap>(get("CurrentHUD")), hud);

    EXPECT_THAT(announcements.heard, IsEmpty());
}

TEST_F(BusTest, RunsWithoutABus)
{
    server_.stop();
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    EXPECT_EQ(start(*service, {.uris = {u"a:1"_s}}), Role::NoBus);
    EXPECT_THAT(handled.calls, ElementsAre(u"open a:1"_s));
    service->statePublisher().publish(u"Page"_s, u"media"_s);
    stop(*service);
}

TEST_F(BusTest, OutlivesTheBus)
{
    auto service = makeService();
    ASSERT_EQ(start(*service), Role::Primary);
    LogCapture log;
    server_.stop();
    QStringList lines;
    EXPECT_TRUE(eventually([&] { return !(lines += log.take()).isEmpty(); }));
    for (int turn = 0; turn < 3; ++turn) {
        service->statePublisher().publish(u"Page"_s, QString::number(turn));
        bool turned = false;
        runLoop_.post([&turned] { turned = true; });
        EXPECT_TRUE(eventually([&turned] { return turned; }));
    }
    stop(*service);
    lines += log.take();
    EXPECT_EQ(lines.filter(u"session bus is gone"_s).size(), 1);
}

/// The command-line client, run against the private bus.
class ControlTest : public BusTest
{
protected:
    void launch(QProcess &process, const QStringList &arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, server_.address());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLMERECTL), arguments);
    }

    struct Result {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };

    Result run(const QString &arguments)
    {
        QProcess process;
        launch(process, arguments.split(u' ', Qt::SkipEmptyParts));
        if (!eventually([&process] { return process.state() == QProcess::NotRunning; }))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
};

TEST_F(ControlTest, SaysWhatIsWrongAndNeverStartsQuillmere)
{
    const struct {
        QString arguments;
        int code;
        const char *error;
    } cases[] = {
        {u""_s, 2, "--help"},
        {u"dance"_s, 2, "dance"},
        {u"action"_s, 2, "name"},
        {u"get Pages"_s, 2, "Pages"},
        {u"watch Page Frame"_s, 2, "one"},
        {u"get Page"_s, 1, "not running"},
        {u"action quit"_s, 1, "not running"},
    };
    const QTemporaryDir directory;
    const QString trace = directory.filePath(u"started"_s);
    server_.offer(bus::serviceName, u"/bin/touch "_s + trace);
    for (const auto &[arguments, code, error] : cases) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, code) << error;
        EXPECT_TRUE(result.error.contains(error)) << result.error.constData();
        EXPECT_TRUE(result.out.isEmpty());
    }
    EXPECT_FALSE(QFile::exists(trace));
    client_.send(QDBusMessage::createMethodCall(bus::serviceName, bus::objectPath,
                                                u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
    EXPECT_TRUE(eventually([&trace] { return QFile::exists(trace); })) << "it could have";
}

TEST_F(ControlTest, ReadsAndActs)
{
    auto service = makeService();
    Handled handled;
    handled.attachTo(service->remoteControl());
    ASSERT_EQ(start(*service), Role::Primary);
    StatePublisher &state = service->statePublisher();
    const QVariantMap hud{{u"level"_s, 0.4},
                          {u"title"_s, u"L\u00e4rm \"1\"\n"_s},
                          {u"tags"_s, QVariantList{true, QVariantMap()}}};
    state.publish(u"CurrentHUD"_s, hud);
    state.publish(u"Activities"_s, QVariantList{hud});
    state.publish(u"Frame"_s, QRect(1, 2, 3, 4));

    const QByteArray json = R"({"level":0.4,"tags":[true,{}],"title":"Lärm \"1\"\n"})";
    const std::pair<QString, QByteArray> answers[] = {
        {u"get CurrentHUD"_s, json + '\n'},
        {u"get Activities"_s, '[' + json + "]\n"},
        {u"get Frame"_s, "[1,2,3,4]\n"},
        {u"get Page"_s, "\"\"\n"},
    };
    for (const auto &[arguments, out] : answers)
        EXPECT_EQ(run(arguments).out, out);
    const QByteArray all = run(u"get"_s).out;
    EXPECT_TRUE(all.startsWith(QByteArray("{\"Activities\":[").append(json))) << all.constData();
    EXPECT_EQ(all.count('\n'), 1);
    EXPECT_EQ(run(u"action start-countdown 10"_s).code, 0);
    EXPECT_EQ(run(u"action start-countdown ten"_s).code, 1);
    EXPECT_THAT(handled.calls, ElementsAre(u"start-countdown10"_s));
}

TEST_F(ControlTest, WatchesAcrossRestarts)
{
    QProcess watch;
    launch(watch, {u"watch"_s, u"Page"_s});
    const auto nextLine = [this, &watch] {
        eventually([&watch] { return watch.canReadLine(); });
        return watch.readLine();
    };
    for (const char *page : {"media", "weather"}) {
        auto service = makeService();
        service->statePublisher().publish(u"Page"_s, QLatin1StringView(page));
        ASSERT_EQ(start(*service), Role::Primary);
        EXPECT_EQ(nextLine(), "{\"Page\":\"" + QByteArray(page) + "\"}\n");
        auto forged = QDBusMessage::createSignal(bus::objectPath, bus::propertiesInterface,
                                                 u"PropertiesChanged"_s);
        forged << QString(bus::islandInterface) << QVariantMap{{u"Page"_s, u"forged"_s}}
               << QStringList();
        EXPECT_TRUE(client_.send(forged));
        EXPECT_EQ(get("Page"), QVariant(QLatin1StringView(page))); // so the forged one is out
        service->statePublisher().publish(u"Presentation"_s, u"hud"_s);
        service->statePublisher().publish(u"Page"_s, u"timer"_s);
        EXPECT_EQ(nextLine(), "{\"Page\":\"timer\"}\n");
        stop(*service);
    }
    watch.terminate();
    ASSERT_TRUE(eventually([&watch] { return watch.state() == QProcess::NotRunning; }));
    EXPECT_EQ(watch.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(watch.exitCode(), 0);
    EXPECT_EQ(watch.readAllStandardError(), QByteArray());
}

} // namespace

} // namespace quillmere

#include "BusTest.moc"
