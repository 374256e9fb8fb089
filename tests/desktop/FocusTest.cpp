#include "platform/linux/focus/DesktopFocus.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/LogCapture.h"
#include "support/MockService.h"
#include "support/XServer.h"

#include <gmock/gmock.h>

#include <QDBusVariant>
#include <QTemporaryDir>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;

/// Where programs keep their settings, also those that the bus starts.
struct Home {
    Home()
    {
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            set(variable, folder.filePath(QString::fromLatin1(variable)).toUtf8());
    }
    ~Home()
    {
        for (const auto &[variable, value] : former)
            value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
    }
    void set(const char *variable, const QByteArray &value)
    {
        former.try_emplace(variable, qgetenv(variable));
        qputenv(variable, value);
    }

    QTemporaryDir folder;
    std::map<const char *, QByteArray> former;
};

struct FocusTest : Home, ServiceTest {
    FocusTest()
    {
        set("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        bus.offer(u"ca.desrt.dconf"_s, u"/usr/libexec/dconf-service"_s);
        bus.offer(u"org.xfce.Xfconf"_s, QStringLiteral(XFCONFD));
    }
    void follow(const QString &desktop)
    {
        told.clear();
        focus.emplace(runLoop, bus.connect(), desktop);
        listener = focus->onChanged([this](bool isOn) { told.push_back(isOn); });
    }
    bool becomes(std::optional<bool> isOn, const QString &teller)
    {
        return eventually([&] { return focus->isOn() == isOn && focus->teller() == teller; });
    }
    static void run(const QString &command)
    {
        QStringList words = command.split(u' ');
        const QString program = words.takeFirst();
        XServer::run(program, words);
    }

    QtRunLoop runLoop;
    std::optional<DesktopFocus> focus;
    std::vector<bool> told;
    Task listener;
};

TEST_F(FocusTest, TheSettingOfTheDesktopIsFollowed)
{
    const std::array<QString, 5> cases[] = {
        {u"ubuntu:gnome"_s, u"GNOME"_s, u"org.gnome.desktop.notifications"_s, u" show-banners "_s,
         u"false"_s},
        {u"X-Cinnamon"_s, u"Cinnamon"_s, u"org.cinnamon.desktop.notifications"_s,
         u" display-notifications "_s, u"false"_s},
        {u"MATE"_s, u"MATE"_s, u"org.mate.NotificationDaemon"_s, u" do-not-disturb "_s, u"true"_s},
    };
    for (const auto &[desktop, teller, schema, key, on] : cases) {
        SCOPED_TRACE(teller.toStdString());
        follow(desktop);
        EXPECT_TRUE(becomes(false, teller));
        run(u"gsettings set "_s + schema + key + on);
        EXPECT_TRUE(becomes(true, teller));
        EXPECT_THAT(told, ElementsAre(true));
        run(u"gsettings reset-recursively "_s + schema);
        run(u"gsettings set "_s + schema + key + on); // perhaps before the former change is read
        run(u"gsettings reset-recursively "_s + schema);
        EXPECT_TRUE(becomes(false, teller));
        run(u"gsettings set "_s + schema + key + on);
        follow(desktop);
        EXPECT_TRUE(becomes(true, teller));
        EXPECT_THAT(told, ElementsAre()) << "what is found at first is no change";
    }
    LogCapture log;
    for (const auto &[variable, complaint] :
         {std::pair{"XDG_DATA_DIRS", "No schemas"}, std::pair{"PATH", "there is no gsettings"}}) {
        set(variable, "/nowhere");
        follow(u"GNOME"_s);
        QStringList lines;
        EXPECT_TRUE(eventually([&] { return !(lines += log.take()).isEmpty(); }));
        EXPECT_THAT(lines.join(u'\n').toStdString(), HasSubstr(complaint));
        EXPECT_EQ(focus->isOn(), std::nullopt);
    }
}

TEST_F(FocusTest, XfceIsAskedAndAServerThatTellsComesFirst)
{
    const auto query = u"xfconf-query -c xfce4-notifyd -p /do-not-disturb "_s;
    follow(u"XFCE"_s);
    run(u"xfconf-query -l"_s);
    EXPECT_TRUE(becomes(false, u"Xfce"_s));
    run(query + u"-n -t bool -s true"_s);
    EXPECT_TRUE(becomes(true, u"Xfce"_s));
    LogCapture log;
    run(query + u"-n -t string -s yes"_s);
    EXPECT_TRUE(eventually([&] { return log.take().size() == 1; }));
    EXPECT_EQ(focus->isOn(), true);
    {
        const XServer display;
        const ChildProgram dunst(u"dunst"_s, {u"-config"_s, u"/dev/null"_s});
        EXPECT_TRUE(becomes(false, u"dunst"_s));
        run(u"dunstctl set-paused true"_s);
        EXPECT_TRUE(becomes(true, u"dunst"_s));
        run(u"dunstctl set-paused false"_s);
        EXPECT_TRUE(becomes(false, u"dunst"_s));
    }
    EXPECT_TRUE(becomes(true, u"Xfce"_s)) << "it is gone, and with it what it told";
    run(query + u"-r"_s);
    EXPECT_TRUE(becomes(false, u"Xfce"_s));
    EXPECT_THAT(told, ElementsAre(true, true, false, false));
}

TEST_F(FocusTest, AServersPropertyIsFollowed)
{
    const std::pair<std::array<QString, 4>, QVariantList> cases[] = {
        {{u"Plasma"_s, u"/org/freedesktop/Notifications"_s, u"org.freedesktop.Notifications"_s,
          u"Inhibited"_s},
         {false, true, false, u"yes"_s}},
        {{u"mako"_s, u"/fr/emersion/Mako"_s, u"fr.emersion.Mako"_s, u"Modes"_s},
         {QStringList{}, QStringList{u"dark"_s, u"do-not-disturb"_s}, QStringList{u"dark"_s}, 1}}};
    follow(u"sway"_s);
    for (const auto &[names, values] : cases) {
        const auto &[teller, path, interface, property] = names;
        const auto name = u"org.freedesktop.Notifications"_s;
        const ChildProgram server(u"/usr/bin/python3"_s,
                                  {u"-m"_s, u"dbusmock"_s, name, path, interface});
        run(u"gdbus wait --session --timeout 20 "_s + name);
        MockService control(bus, name, path);
        control.call(path, mock, "AddProperty",
                     {interface, property, QVariant::fromValue(QDBusVariant(values.at(0)))});
        LogCapture log;
        for (int i = 0; i < values.size(); ++i) {
            control.update(path, interface, {{property, values.at(i)}});
            EXPECT_TRUE(becomes(i == 1, teller));
        }
        EXPECT_TRUE(eventually([&] { return log.take().size() == 1; }));
    }
    EXPECT_THAT(told, ElementsAre(true, false, true, false));
}

} // namespace
} // namespace quillmere
