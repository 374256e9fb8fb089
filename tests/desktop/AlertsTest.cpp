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

TEST_F(AlertsTest, NotificationsReachTheServerAsPlainTextAndReplaceTheirLike)
{
    const std::pair<const char *, const char *> servers[] = {{"body-markup", "Ada&amp;Bob&lt;3"},
                                                             {"body", "Ada&Bob<3"}};
    DesktopNotifications notifications(bus.connect());
    const auto deliver = [&](const QString &identifier) {
        notifications.deliver({.identifier = identifier,
                               .title = QStringLiteral("Low <Battery>"),
                               .body = QStringLiteral("Ada&Bob<3"),
                               .symbol = QString(symbols::battery25)});
    };
    LogCapture log;
    deliver(QStringLiteral("early"));
    ASSERT_TRUE(eventually([&] { return log.take().size() == 1; }));
    for (const auto &[capabilities, body] : servers) {
        startServer(QString::fromLatin1(capabilities));
        QStringList expected;
        for (const char *step : {"a 0", "b 0", "c 0", "a 41"}) {
            const QStringList words = QString::fromLatin1(step).split(u' ');
            deliver(words.at(0));
            expected << words.at(1) + QStringLiteral(" | battery-caution | Low <Battery> | ") +
                            QString::fromLatin1(body) +
                            QStringLiteral(" | desktop-entry suppress-sound urgency");
            ASSERT_TRUE(eventually([&] { return got().size() == expected.size(); }));
        }
        EXPECT_EQ(got(), expected);
        for (int i = 0; i < 40; ++i) // those of a long day are not all remembered
            deliver(QString::number(i));
        ASSERT_TRUE(eventually([&] { return got().size() == 44; }));
        deliver(QStringLiteral("a"));
        ASSERT_TRUE(eventually([&] { return got().size() == 45; }));
        deliver(QStringLiteral("39"));
        ASSERT_TRUE(eventually([&] { return got().size() == 46; }));
        EXPECT_TRUE(got().at(44).startsWith(u'0'));
        EXPECT_TRUE(got().at(45).startsWith(QStringLiteral("84")));
        server.stop();
    }
}

TEST(SoundTest, PlaysTheThemesSoundAlsoAfterTheServerRestarted)
{
    ServiceTest::SetUpTestSuite();
    PulseServer server;
    QtRunLoop runLoop;
    CanberraSound sounds(runLoop);
    for (int run = 0; run < 2; ++run) {
        server.start({QStringLiteral("quiet")});
        EXPECT_TRUE(eventually([&] {
            sounds.play(Sound::Glass);
            return server.pactl(QStringLiteral("list sink-inputs"))
                .contains(QStringLiteral("event.id = \"alarm-clock-elapsed\""));
        }));
        server.kill();
    }
}

} // namespace
} // namespace quillmere
