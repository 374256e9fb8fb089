#include "app/AppEvents.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/dbus/DBusService.h"
#include "platform/linux/dbus/ShortcutTypes.h"
#include "platform/linux/shortcuts/PortalGlobalShortcuts.h"
#include "platform/linux/shortcuts/PortalShortcut.h"
#include "support/FakeAlerts.h"
#include "support/LogCapture.h"
#include "support/MockService.h"
#include "tools/CountdownTimerManager.h"
#include "tools/PomodoroManager.h"
#include "tools/QuillmereShortcuts.h"

#include <gmock/gmock.h>

#include <QDBusVirtualObject>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The timers behind the real bus face, asked by the programs that desktops come with.
struct ShortcutBusTest : ServiceTest {
    ShortcutBusTest()
    {
        std::optional<DBusService::Role> role;
        service.start({}, [&role](DBusService::Role outcome) { role = outcome; });
        EXPECT_TRUE(eventually([&role] { return role.has_value(); }));
    }

    void offerShortcuts()
    {
        shortcuts.emplace(pomodoro, countdown, notificationCenter, service.shortcuts());
        shortcuts->onDialog = [this](const HUDContent &hud) { seen << hud.title; };
        shortcuts->onShow = [this] { seen << u"shown"_s; };
        service.remoteControl().setHandlers(
            {.activate = {},
             .open = {},
             .activateAction = [this](const QString &action,
                                      const QVariantList &parameter) -> ActionOutcome {
                 const auto outcome = shortcuts->activateAction(action, parameter);
                 return outcome ? ActionOutcome(true) : ActionOutcome::refused(outcome.error());
             }});
    }

    void launch(QProcess &process, const QString &program, const QStringList &arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
    }

    std::string output(QProcess &process)
    {
        EXPECT_TRUE(eventually([&] { return process.state() == QProcess::NotRunning; }));
        return process.readAll().trimmed().toStdString();
    }

    std::string run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        launch(process, program, arguments);
        return output(process);
    }

    static QStringList gdbus(QLatin1StringView path, QLatin1StringView interface,
                             const char *method, const QStringList &arguments)
    {
        return QStringList{u"call"_s, u"--session"_s,
                           u"-d"_s,   bus::serviceName,
                           u"-o"_s,   path,
                           u"-m"_s,   interface + u'.' + QLatin1StringView(method)} +
               arguments;
    }

    QtRunLoop runLoop;
    DBusService service{runLoop, [this] { return bus.connect(); }};
    FakeUserNotifications notifications;
    FakeSystemSound sound;
    PomodoroManager pomodoro{runLoop, notifications};
    CountdownTimerManager countdown{runLoop, notifications, sound};
    NotificationCenter notificationCenter;
    std::optional<QuillmereShortcuts> shortcuts;
    QStringList seen;
};

TEST_F(ShortcutBusTest, EveryIntentAnswersAClientEvenOneThatCameEarly)
{
    const auto perform = [](const char *intent, const char *parameters = "{}") {
        return gdbus(bus::objectPath, bus::shortcutsInterface, "Perform",
                     {QLatin1StringView(intent), QLatin1StringView(parameters)});
    };
    QProcess early;
    launch(early, u"gdbus"_s, perform("StopPomodoroIntent"));
    QProcess later;
    launch(later, u"gdbus"_s, gdbus(bus::runnerPath, bus::runnerInterface, "Actions", {}));
    EXPECT_EQ(output(later), "(@a(sss) [],)");
    offerShortcuts();
    int toggled = 0;
    const Task observer =
        notificationCenter.observe(events::islandTapped, [&](const QVariantMap &) { ++toggled; });
    EXPECT_EQ(output(early), "('No Pomodoro session is running.',)");

    const struct {
        const char *intent;
        const char *parameters;
        const char *answer;
    } steps[] = {
        {"SkipPomodoroIntent", "{}", "('No Pomodoro session is running.',)"},
        {"StartPomodoroIntent", "{}", "('Pomodoro started — 25 minutes of focus.',)"},
        {"SkipPomodoroIntent", "{}", "('Focus session skipped.',)"},
        {"SkipPomodoroIntent", "{}", "('Break skipped.',)"},
        {"StartPomodoroIntent", "{}", "('Pomodoro started — 25 minutes of focus.',)"},
        {"StopPomodoroIntent", "{}", "('Pomodoro stopped.',)"},
        {"StopCountdownTimerIntent", "{}", "('No timer was running.',)"},
        {"StartCountdownTimerIntent", "{'minutes': <10>}",
         "('Countdown started — 10 minutes to go.',)"},
        {"StartCountdownTimerIntent", "{'minutes': <uint64 1>}",
         "('Countdown started — 1 minute to go.',)"},
        {"StartCountdownTimerIntent", "{}", "('Countdown started — 1 minute to go.',)"},
        {"StopCountdownTimerIntent", "{}", "('Timer cancelled.',)"},
        {"ToggleIslandIntent", "{}", "('Toggled the island.',)"},
        {"StartCountdownTimerIntent", "{'minutes': <1441>}",
         "InvalidArgs: minutes must be a whole number from 1 to 1440"},
        {"StartCountdownTimerIntent", "{'minutes': <(1, 2)>}",
         "InvalidArgs: minutes must be a whole number from 1 to 1440"},
        {"EraseDisk", "{}", "InvalidArgs: there is no intent \"EraseDisk\""},
    };
    for (const auto &[intent, parameters, answer] : steps)
        EXPECT_THAT(run(u"gdbus"_s, perform(intent, parameters)), HasSubstr(answer)) << intent;
    EXPECT_FALSE(countdown.isRunning());
    EXPECT_EQ(toggled, 1);
    EXPECT_EQ(pomodoro.sessionsCompleted(), 1) << "a skipped session counts";
    EXPECT_THAT(run(u"gdbus"_s, gdbus(bus::objectPath, bus::shortcutsInterface, "List", {})),
                HasSubstr("('SkipPomodoroIntent', 'Skip Pomodoro Phase', 'forward.fill')"));
    EXPECT_EQ(run(QStringLiteral(QUILLMERECTL),
                  {u"perform"_s, u"StartCountdownTimerIntent"_s, u"minutes=3"_s}),
              "Countdown started — 3 minutes to go.");
    EXPECT_THAT(seen, IsEmpty()) << "who asked has the dialog";
}

TEST_F(ShortcutBusTest, ActionsSayWhatIsWrongWithTheirNumber)
{
    offerShortcuts();
    const QString name(bus::serviceName);
    EXPECT_EQ(run(u"gapplication"_s, {u"action"_s, name, u"start-countdown"_s, u"7"_s}), "");
    EXPECT_TRUE(eventually([this] { return countdown.isRunning(); }));
    EXPECT_THAT(run(u"gdbus"_s, gdbus(bus::objectPath, bus::applicationInterface, "ActivateAction",
                                      {u"start-countdown"_s, u"[<0>]"_s, u"{}"_s})),
                HasSubstr("minutes must be a whole number from 1 to 1440"));
    EXPECT_THAT(seen, ElementsAre(u"Countdown started — 7 minutes to go."_s));
}

TEST_F(ShortcutBusTest, TheShellFindsAndRuns)
{
    offerShortcuts();
    const auto ask = [this](const char *method, const QStringList &arguments) {
        return run(u"gdbus"_s,
                   gdbus(bus::searchProviderPath, bus::searchProviderInterface, method, arguments));
    };
    EXPECT_EQ(ask("GetInitialResultSet", {u"['timer', '1']"_s}), "(['start-countdown:1'],)");
    EXPECT_EQ(ask("GetSubsearchResultSet", {u"['start-countdown:1']"_s, u"['timer', '10']"_s}),
              "(['start-countdown:10'],)");
    EXPECT_EQ(ask("GetInitialResultSet", {u"['firefox']"_s}), "(@as [],)");
    const auto metas = ask("GetResultMetas", {u"['start-countdown:10', 'nonsense']"_s});
    for (const char *part :
         {"'id': <'start-countdown:10'>", "'name': <'Start a 10-minute countdown'>",
          "'gicon': <'com.quillmere.Quillmere-hourglass-symbolic'>"})
        EXPECT_THAT(metas, HasSubstr(part));
    EXPECT_THAT(metas, testing::Not(HasSubstr("nonsense")));
    EXPECT_EQ(ask("ActivateResult", {u"start-countdown:10"_s, u"['timer', '10']"_s, u"0"_s}), "()");
    EXPECT_EQ(ask("LaunchSearch", {u"['timer']"_s, u"0"_s}), "()");
    EXPECT_THAT(seen, ElementsAre(u"Countdown started — 10 minutes to go."_s, u"shown"_s));
    EXPECT_EQ(countdown.targetSeconds(), 600);
}

TEST_F(ShortcutBusTest, PlasmaFindsAndRuns)
{
    offerShortcuts();
    const auto ask = [this](const char *method, const QStringList &arguments) {
        return run(u"gdbus"_s, gdbus(bus::runnerPath, bus::runnerInterface, method, arguments));
    };
    EXPECT_EQ(ask("Match", {u"timer 10"_s}),
              "([('start-countdown:10', 'Start a 10-minute countdown', "
              "'com.quillmere.Quillmere-hourglass-symbolic', 100, 1.0, "
              "{'category': <'Quillmere'>, 'subtext': <'Start Timer'>})],)");
    EXPECT_THAT(ask("Match", {u"start a pom"_s}), HasSubstr("('start-pomodoro', 'Start Pomodoro'"));
    EXPECT_EQ(ask("Match", {u"firefox"_s}), "(@a(sssida{sv}) [],)");
    EXPECT_EQ(ask("Run", {u"start-pomodoro"_s, u""_s}), "()");
    EXPECT_EQ(pomodoro.state(), PomodoroState::Working);
}

TEST_F(ShortcutBusTest, EveryPictureThatIsNamedIsThere)
{
    offerShortcuts();
    const QString folder = QStringLiteral(PICTURES "/");
    const QString prefix = bus::serviceName + u'-';
    int found = 0;
    service.shortcuts().take([&](const ShortcutRequests &requests) {
        for (const ShortcutMatch &match : requests.search(u"quillmere"_s))
            found += QFile::exists(folder + installedIcon(match.symbol).remove(prefix) + u".svg");
    });
    EXPECT_EQ(found, 5);
}

/// The desktop's portal with key bindings of some version; 0: without.
class FakePortal : public QDBusVirtualObject
{
public:
    FakePortal(QDBusConnection connection, uint version, uint response)
        : connection_(std::move(connection))
        , version_(version)
        , response_(response)
    {
        connection_.registerVirtualObject(path, this, QDBusConnection::SubPath);
        connection_.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~FakePortal() override { QDBusConnection::disconnectFromBus(connection_.name()); }

    void press(const QString &id)
    {
        auto signal = QDBusMessage::createSignal(path, shortcuts, u"Activated"_s);
        signal << QVariant::fromValue(QDBusObjectPath(session)) << id << qulonglong{1}
               << QVariantMap();
        connection_.send(signal);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        calls << message.member();
        const QVariantList arguments = message.arguments();
        if (message.member() == u"Get" && version_ == 0)
            return connection_.send(message.createErrorReply(QDBusError::UnknownInterface, {}));
        if (message.member() == u"Get")
            return connection_.send(
                message.createReply(QVariant::fromValue(QDBusVariant(version_))));
        if (message.member() == u"BindShortcuts") {
            for (const auto &shortcut :
                 qdbus_cast<PortalShortcuts>(arguments.at(1).value<QDBusArgument>()))
                bound << shortcut.id + u'=' +
                             shortcut.properties.value(u"description"_s).toString();
        }
        if (message.member() == u"CreateSession" || message.member() == u"BindShortcuts")
            return respond(message, qdbus_cast<QVariantMap>(arguments.last()));
        return connection_.send(message.createReply());
    }

    QStringList calls;
    QStringList bound;

private:
    bool respond(const QDBusMessage &message, const QVariantMap &options)
    {
        const QString request = path + u"/request/"_s +
                                message.service().mid(1).replace(u'.', u'_') + u'/' +
                                options.value(u"handle_token"_s).toString();
        auto signal = QDBusMessage::createTargetedSignal(
            message.service(), request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response_ << QVariantMap{{u"session_handle"_s, session}};
        connection_.send(signal);
        return connection_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    }

    const QString path = u"/org/freedesktop/portal/desktop"_s;
    const QString shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
    const QString session = u"/org/freedesktop/portal/desktop/session/1/quillmere"_s;
    QDBusConnection connection_;
    uint version_;
    uint response_;
};

TEST_F(ShortcutBusTest, KeysOfThePortalRunShortcutsAlsoAfterItsRestart)
{
    std::optional<PortalGlobalShortcuts> keys(std::in_place, *service.connection(),
                                              service.shortcuts());
    offerShortcuts();
    for (int life = 0; life < 2; ++life) {
        FakePortal portal(bus.connect(), 1, 0);
        ASSERT_TRUE(eventually([&] { return portal.bound.size() == 6; }));
        EXPECT_THAT(portal.calls,
                    ElementsAre(u"Register"_s, u"Get"_s, u"CreateSession"_s, u"BindShortcuts"_s));
        EXPECT_TRUE(portal.bound.contains(u"skip-pomodoro=Skip Pomodoro Phase"_s));
        seen.clear();
        FakePortal impostor(bus.connect(), 1, 0);
        impostor.press(u"start-pomodoro"_s);
        portal.press(u"stop-pomodoro"_s);
        ASSERT_TRUE(eventually([&] { return !seen.isEmpty(); }));
        EXPECT_THAT(seen, ElementsAre(u"No Pomodoro session is running."_s));
        if (life == 1) {
            keys.reset();
            EXPECT_TRUE(eventually([&] { return portal.calls.last() == u"Close"; }));
        }
    }
}

TEST_F(ShortcutBusTest, APortalWithoutKeysOrAUserWhoDeclinesIsLeftAlone)
{
    LogCapture log;
    PortalGlobalShortcuts keys(*service.connection(), service.shortcuts());
    offerShortcuts();
    {
        FakePortal portal(bus.connect(), 0, 0);
        ASSERT_TRUE(eventually([&] { return portal.calls.size() == 2; }));
    }
    FakePortal portal(bus.connect(), 1, 1);
    QStringList lines;
    ASSERT_TRUE(eventually([&] { return !(lines += log.take()).isEmpty(); }));
    EXPECT_EQ(lines.filter(u"[Shortcuts] The desktop has no key bindings for us"_s).size(), 1);
    EXPECT_THAT(portal.bound, IsEmpty());
}

} // namespace
} // namespace quillmere
