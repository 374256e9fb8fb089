#include "platform/linux/alerts/CanberraSound.h"
#include "platform/linux/alerts/DesktopNotifications.h"

#include "platform/Symbols.h"
#include "platform/linux/core/QtRunLoop.h"
#include "support/LogCapture.h"
#include "support/MockService.h"
#include "support/PulseServer.h"

namespace quillmere {
namespace {

const QString serverName = QStringLiteral("org.freedesktop.Notifications");
const QString serverPath = QStringLiteral("/org/freedesktop/Notifications");

struct AlertsTest : ServiceTest {
    /// A server that says which notifications it got.
    void startServer(const QString &capabilities)
    {
        server.start(QStringLiteral("notification_daemon"));
        add("GetCapabilities", QString(), QStringLiteral("as"),
            QStringLiteral("ret = ['%1']").arg(capabilities));
        add("Notify", QStringLiteral("susssasa{sv}i"), QStringLiteral("u"),
            QStringLiteral("self.got = getattr(self, 'got', []) + [' | '.join(str(a) for a in "
                           "args[1:5]) + ' | ' + "
                           "' '.join(k for k in sorted(args[6]))]; ret = 40 + len(self.got)"));
        add("Got", QString(), QStringLiteral("as"),
            QStringLiteral("ret = getattr(self, 'got', [])"));
    }
    void add(const char *method, const QString &in, const QString &out, const QString &code)
    {
        server.call(serverPath, mock, "AddMethod",
                    {serverName, QString::fromLatin1(method), in, out, code});
    }
    QStringList got()
    {
        return server.call(serverPath, serverName, "Got", {}).arguments().value(0).toStringList();
    }

    MockService server{bus, serverName, serverPath};
};

TEST_F(AlertsTest, NotificationsReachTheServerAsPlainText)
{
    const struct {
        const char *capabilities;
        const char *body;
    } servers[] = {{"body-markup", "Ada&amp;Bob&lt;3"}, {"body", "Ada&Bob<3"}};
    DesktopNotifications notifications(bus.connect());
    for (const auto &each : servers) {
        startServer(QString::fromLatin1(each.capabilities));
        notifications.deliver({.identifier = QStringLiteral("battery"),
                               .title = QStringLiteral("Low <Battery>"),
                               .body = QStringLiteral("Ada&Bob<3"),
                               .symbol = QString(symbols::battery25),
                               .isUrgent = true});
        ASSERT_TRUE(waitUntil([&] { return !got().isEmpty(); }));
        EXPECT_EQ(got().value(0), QStringLiteral("0 | battery-caution | Low <Battery> | %1 | "
                                                 "desktop-entry suppress-sound urgency")
                                      .arg(QLatin1StringView(each.body)));
        server.stop();
    }
}

TEST_F(AlertsTest, ANotificationTakesThePlaceOfItsLikeAndOneForNobodyIsLogged)
{
    DesktopNotifications notifications(bus.connect());
    const auto deliver = [&](const char *identifier) {
        notifications.deliver({.identifier = QString::fromLatin1(identifier),
                               .title = QString::fromLatin1(identifier),
                               .body = QString(),
                               .playsSound = true});
    };
    LogCapture log;
    deliver("early");
    ASSERT_TRUE(waitUntil([&] { return log.take().size() == 1; }));
    startServer(QStringLiteral("body"));
    for (const char *identifier : {"a", "b", "c", "a"}) {
        const auto before = got().size();
        deliver(identifier);
        ASSERT_TRUE(waitUntil([&] { return got().size() > before; }));
    }
    QStringList replaced;
    for (const QString &line : got())
        replaced << line.section(QStringLiteral(" | "), 0, 0);
    EXPECT_EQ(replaced.join(u' '), QStringLiteral("0 0 0 41"));
}

TEST(SoundTest, PlaysTheThemesSoundAlsoAfterTheServerRestarted)
{
    ServiceTest::SetUpTestSuite();
    PulseServer server;
    QtRunLoop runLoop;
    CanberraSound sounds(runLoop);
    for (int run = 0; run < 2; ++run) {
        server.start({QStringLiteral("quiet")});
        EXPECT_TRUE(waitUntil([&] {
            sounds.play(Sound::Glass);
            return server.pactl(QStringLiteral("list sink-inputs"))
                .contains(QStringLiteral("event.id = \"alarm-clock-elapsed\""));
        }));
        server.kill();
    }
}

} // namespace
} // namespace quillmere
