#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/appearance/FeedbackdHaptics.h"

#include "support/BusServer.h"
#include "support/Eventually.h"
#include "support/RealFiles.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

const QString portalName = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsName = u"org.freedesktop.portal.Settings"_s;
const QString common = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;

struct Color {
    double red, green, blue;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Color &color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Color &)
{
    return argument;
}

/// A desktop's portal with the settings a test gives it.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Portal(QDBusConnection connection, SettingsByNamespace settings)
        : connection_(std::move(connection))
        , settings_(std::move(settings))
    {
        connection_.registerObject(portalPath, this, QDBusConnection::ExportAllSlots);
        connection_.registerService(portalName);
    }
    ~Portal() override { QDBusConnection::disconnectFromBus(connection_.name()); }

    void change(const QString &settings, const QString &key, const QVariant &value)
    {
        announce(connection_, settings, key, value);
    }

    static void announce(const QDBusConnection &sender, const QString &settings, const QString &key,
                         const QVariant &value)
    {
        auto signal = QDBusMessage::createSignal(portalPath, settingsName, u"SettingChanged"_s);
        signal << settings << key << QVariant::fromValue(QDBusVariant(value));
        sender.send(signal);
    }

    Q_SLOT quillmere::SettingsByNamespace ReadAll(const QStringList &namespaces)
    {
        SettingsByNamespace answer;
        for (const auto &each : namespaces)
            answer[each] = settings_.value(each);
        return answer;
    }

private:
    QDBusConnection connection_;
    SettingsByNamespace settings_;
};

/// The feedback service; remembers the events it was asked for.
class Feedback : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.sigxcpu.Feedback")

public:
    Q_SLOT uint TriggerFeedback(const QString &, const QString &event, const QVariantMap &hints,
                                int)
    {
        events.append(event + u' ' + hints.value(u"profile"_s).toString());
        return 1;
    }
    QStringList events;
};

class DesktopAppearanceTest : public RealFiles
{
protected:
    DesktopAppearanceTest()
    {
        qDBusRegisterMetaType<Color>();
        qDBusRegisterMetaType<SettingsByNamespace>();
    }

    bool eventually(const std::function<bool()> &condition)
    {
        return quillmere::eventually(condition, [this] { loop.advance(10ms); });
    }

    /// Until everything that was asked of the bus so far is answered.
    void roundTrip(const QDBusConnection &connection)
    {
        BusCalls calls(connection);
        for (int turn = 0; turn < 3; ++turn) {
            bool answered = false;
            calls.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s,
                                                      u"/org/freedesktop/DBus"_s,
                                                      u"org.freedesktop.DBus"_s, u"GetId"_s),
                       5s, [&answered](const BusReply &) { answered = true; });
            ASSERT_TRUE(eventually([&answered] { return answered; }));
        }
    }

    BusServer server;
    QDBusConnection bus = server.connect();
};

QVariant color(double red, double green, double blue)
{
    return QVariant::fromValue(Color{red, green, blue});
}

QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

TEST_F(DesktopAppearanceTest, ReadsWhatDesktopsTell)
{
    struct {
        const char *what;
        QString settings;
        const char *key;
        QVariant value;
        AppearanceValues expected;
    } const cases[] = {
        {"reduced", common, "reduced-motion", 1U, {.reducesMotion = true}},
        {"wrapped twice", common, "reduced-motion", wrapped(1U), {.reducesMotion = true}},
        {"unknown preference", common, "reduced-motion", 7U, {}},
        {"wrong type", common, "reduced-motion", u"1"_s, {}},
        {"GNOME", gnome, "enable-animations", false, {.reducesMotion = true}},
        {"GNOME, on", gnome, "enable-animations", true, {}},
        {"GNOME, wrong type", gnome, "enable-animations", 0U, {}},
        {"contrast", common, "contrast", 1U, {.highContrast = true}},
        {"GNOME contrast",
         u"org.gnome.desktop.a11y.interface"_s,
         "high-contrast",
         true,
         {.highContrast = true}},
        {"accent", common, "accent-color", color(0, 0.5, 1), {.accent = AccentColor{0, 0.5, 1}}},
        {"dark", common, "color-scheme", 1U, {.dark = true}},
        {"light", common, "color-scheme", 2U, {.dark = false}},
        {"wrong scheme", common, "color-scheme", u"dark"_s, {}},
        {"GNOME's word", gnome, "color-scheme", u"prefer-dark"_s, {.dark = true}},
        {"no accent", common, "accent-color", color(-1, -1, -1), {}},
        {"wrong accent", common, "accent-color", u"#3584e4"_s, {}},
        {"dark", common, "color-scheme", 1U, {.dark = true}},
        {"light", common, "color-scheme", 2U, {.dark = false}},
        {"no scheme", common, "color-scheme", 0U, {}},
        {"wrong scheme", common, "color-scheme", true, {}},
        {"GNOME, dark", gnome, "color-scheme", u"prefer-dark"_s, {.dark = true}},
    };
    for (const auto &each : cases) {
        const Portal portal(server.connect(),
                            {{each.settings, {{QLatin1StringView(each.key), each.value}}}});
        DesktopAppearance appearance(loop, bus, {});
        roundTrip(bus);
        EXPECT_TRUE(eventually([&] {
            return AppearanceValues{appearance.reducesMotion(), appearance.highContrast(),
                                    appearance.accentColor(),
                                    appearance.prefersDark()} == each.expected;
        })) << each.what;
    }
}

TEST_F(DesktopAppearanceTest, FollowsChangesAndRestartsOfThePortalAlone)
{
    DesktopAppearance appearance(loop, bus, {});
    int changes = 0;
    const Task listener = appearance.onChanged([&changes] { ++changes; });
    roundTrip(bus);
    EXPECT_FALSE(appearance.reducesMotion());
    {
        Portal portal(server.connect(), {{common, {{u"contrast"_s, 1U}}}});
        ASSERT_TRUE(eventually([&changes] { return changes == 1; }));
        EXPECT_TRUE(appearance.highContrast());
        Portal::announce(server.connect(), common, u"contrast"_s, 0U); // not the portal
        portal.change(u"org.example"_s, u"contrast"_s, 0U);
        portal.change(common, u"reduced-motion"_s, 0U);
        portal.change(common, u"reduced-motion"_s, 1U);
        ASSERT_TRUE(eventually([&appearance] { return appearance.reducesMotion(); }));
        EXPECT_EQ(changes, 2);
    }
    roundTrip(bus);
    EXPECT_TRUE(appearance.highContrast() && appearance.reducesMotion());
    const Portal again(server.connect(), {{common, {{u"contrast"_s, 1U}}}});
    EXPECT_TRUE(eventually([&appearance] { return !appearance.reducesMotion(); }));
    EXPECT_TRUE(appearance.highContrast());
}

TEST_F(DesktopAppearanceTest, FollowsTheSettingsFileOfKde)
{
    const std::pair<const char *, AppearanceValues> cases[] = {
        {"[KDE]\nAnimationDurationFactor=0\n", {.reducesMotion = true}},
        {"[KDE]\r\n AnimationDurationFactor = 0.5\r\n", {}},
        {"[Other]\nAnimationDurationFactor=0\n", {}},
        {"[KDE]\nAnimationDurationFactor=fast\n", {}},
        {"[General]\nAccentColor=255,0,51\n[KDE]\nAnimationDurationFactor=0.0",
         {.reducesMotion = true, .accent = AccentColor{1, 0, 0.2}}},
        {"[General]\nAccentColor=256,0,0\n", {}},
        {"[General]\nAccentColor=1,2\n[=\n=\n[]", {}},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(appearanceFrom({}, parseKdeGlobals(text)), expected) << text;

    DesktopAppearance appearance(loop, bus, path(u"kdeglobals"_s));
    advance(1s);
    EXPECT_FALSE(appearance.reducesMotion());
    replace(u"kdeglobals"_s, cases[0].first);
    advance(1s);
    EXPECT_TRUE(appearance.reducesMotion());
    QFile::remove(path(u"kdeglobals"_s));
    advance(1s);
    EXPECT_FALSE(appearance.reducesMotion());
}

TEST_F(DesktopAppearanceTest, WithoutABusThereAreDefaults)
{
    server.stop();
    const QDBusConnection none = server.connect();
    DesktopAppearance appearance(loop, none, {});
    FeedbackdHaptics haptics(none);
    advance(1s);
    haptics.performFeedback();
    advance(1s);
    EXPECT_FALSE(appearance.reducesMotion() || appearance.highContrast());
    EXPECT_FALSE(appearance.accentColor());
}

TEST_F(DesktopAppearanceTest, FeedbackIsAskedOnlyOfAServiceThatIsThereOrCanStart)
{
    const QString name = u"org.sigxcpu.Feedback"_s;
    const QString mark = path(u"started"_s);
    FeedbackdHaptics without(bus);
    roundTrip(bus);
    server.offer(name, u"/usr/bin/touch "_s + mark); // too late for the first one to know
    without.performFeedback();
    roundTrip(bus);
    EXPECT_FALSE(QFile::exists(mark));

    FeedbackdHaptics offered(bus);
    roundTrip(bus);
    offered.performFeedback();
    EXPECT_TRUE(eventually([&mark] { return QFile::exists(mark); }));

    Feedback feedback;
    QDBusConnection service = server.connect();
    service.registerObject(u"/org/sigxcpu/Feedback"_s, &feedback, QDBusConnection::ExportAllSlots);
    ASSERT_TRUE(service.registerService(name));
    roundTrip(bus);
    without.performFeedback(); // has heard of it by now
    EXPECT_TRUE(eventually([&feedback] { return !feedback.events.isEmpty(); }));
    EXPECT_EQ(feedback.events, QStringList(u"button-pressed quiet"_s));
}

} // namespace

} // namespace quillmere

#include "DesktopAppearanceTest.moc"
