#include "platform/linux/desktop/DesktopLauncher.h"
#include "platform/linux/desktop/DesktopIcons.h"
#include "platform/linux/desktop/IconTheme.h"

#include "support/Eventually.h"
#include "support/RealFiles.h"

using namespace quillmere;
using namespace Qt::StringLiterals;

namespace {

struct DesktopLauncherTest : RealFiles {
    DesktopLauncherTest()
    {
        qputenv("XDG_DATA_HOME", directory.path().toUtf8());
        qputenv("XDG_DATA_DIRS", "/nowhere");
        qputenv("XDG_CONFIG_HOME", path(u"config"_s).toUtf8());
        QDir(directory.path()).mkpath(u"applications"_s);
        QDir(directory.path()).mkpath(u"config"_s);
    }
    void install(const QString &name)
    {
        write(u"applications/%1.desktop"_s.arg(name),
              "[Desktop Entry]\nType=Application\nName=x\nExec=touch " + path(name).toUtf8() +
                  " %U\n");
    }
    bool starts(const char *bundleID, const QString &name)
    {
        return launcher.open(QString::fromUtf8(bundleID)) &&
               eventually([&] { return QFile::remove(path(name)); });
    }

    DesktopLauncher launcher;
};

TEST_F(DesktopLauncherTest, StartsWhatIsInstalledUnderAnyOfItsNames)
{
    EXPECT_FALSE(launcher.open(u"com.apple.mail"_s));
    EXPECT_FALSE(launcher.open(u"../applications/x"_s));
    EXPECT_EQ(log.take().size(), 2);
    for (const char *name :
         {"com.slack.Slack", "discord-ptb", "org.gnome.Evolution", "own", "org.example.App"})
        install(QString::fromUtf8(name));
    EXPECT_TRUE(starts("com.tinyspeck.slackmacgap", u"com.slack.Slack"_s));
    EXPECT_TRUE(starts("com.hnc.Discord", u"discord-ptb"_s));
    EXPECT_TRUE(starts("org.example.App", u"org.example.App"_s));
    EXPECT_TRUE(starts("com.apple.mail", u"org.gnome.Evolution"_s));
    write(u"config/mimeapps.list"_s,
          "[Default Applications]\nx-scheme-handler/mailto=own.desktop;\n");
    EXPECT_TRUE(starts("com.apple.mail", u"own"_s));
}

struct DesktopIconsTest : DesktopLauncherTest {
    void index(const QString &theme, const QByteArray &text)
    {
        QDir(directory.path()).mkpath(u"icons/"_s + theme);
        write(u"icons/%1/index.theme"_s.arg(theme), "[Icon Theme]\n" + text);
    }
    void add(const QString &name, const QColor &color = Qt::red, int size = 32)
    {
        QDir(directory.path()).mkpath(name.section(u'/', 0, -2));
        QImage image(size, size, QImage::Format_RGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(path(name)));
    }
    QString found(const QString &name, const QString &theme = u"Mine"_s)
    {
        return themeIcon(name, theme, 96).remove(directory.path() + u"/icons/"_s);
    }
};

TEST_F(DesktopIconsTest, TheBestFitOfTheNearestThemeIsTaken)
{
    const QByteArray sizes = "Directories=16/apps,256/apps,128/apps,any/apps\n"
                             "[16/apps]\nSize=16\n[128/apps]\nSize=128\n[256/apps]\nSize=256\n"
                             "[any/apps]\nSize=48\nType=Scalable\nMaxSize=512\n";
    index(u"Mine"_s,
          "Inherits=Theirs,Mine\nDirectories=16/apps,../../secret\n[16/apps]\nSize=16\n");
    index(u"Theirs"_s, "Inherits = Mine , Gone\n" + sizes);
    index(u"hicolor"_s, sizes);
    for (const char *file : {"Mine/16/apps/near", "Theirs/256/apps/near", "Theirs/16/apps/mid",
                             "Theirs/256/apps/mid", "Theirs/128/apps/mid", "hicolor/any/apps/far",
                             "hicolor/128/apps/far", "hicolor/16/apps/mid"})
        add(u"icons/"_s + QString::fromUtf8(file) + u".png"_s);
    EXPECT_EQ(found(u"near"_s), u"Mine/16/apps/near.png"_s);
    EXPECT_EQ(found(u"mid"_s), u"Theirs/128/apps/mid.png"_s);
    EXPECT_EQ(found(u"far"_s), u"hicolor/any/apps/far.png"_s);
    EXPECT_EQ(found(u"far"_s, QString()), u"hicolor/any/apps/far.png"_s);
    EXPECT_EQ(found(u"../16/apps/near"_s), QString());
    EXPECT_EQ(found(u"nowhere"_s), QString());
}

TEST_F(DesktopIconsTest, AnIconIsThereTheSecondTimeAndFollowsItsFile)
{
    DesktopIcons icons(loop, [] { return QString(); });
    const QString slack = u"com.tinyspeck.slackmacgap"_s;
    const auto icon = [&] {
        icons.icon(slack);
        loop.settle();
        return icons.icon(slack);
    };
    EXPECT_TRUE(icon().isNull());
    install(u"slack"_s);
    EXPECT_TRUE(icon().isNull());
    const QByteArray entry = "[Desktop Entry]\nIcon=";
    write(u"applications/slack.desktop"_s, entry + path(u"own.png"_s).toUtf8() + "\n");
    add(u"own.png"_s, Qt::red, 500);
    EXPECT_EQ(icon().size(), QSize(96, 96));
    add(u"own.png"_s, Qt::blue);
    EXPECT_EQ(icon().pixelColor(1, 1), QColor(Qt::blue));
    EXPECT_EQ(icon().cacheKey(), icon().cacheKey()) << "the same picture is no new one";
    write(u"applications/slack.desktop"_s, entry + "drawn\n");
    QDir(directory.path()).mkpath(u"pixmaps"_s);
    write(u"pixmaps/drawn.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
        <rect width="8" height="8" fill="#00ff00"/></svg>)");
    EXPECT_EQ(icon().size(), QSize(96, 96));
    EXPECT_EQ(icon().pixelColor(50, 50), QColor(0, 255, 0));
    for (const char *wrong : {"/dev/zero\n", "/dev/tty\n", ".\n", "\n"}) {
        write(u"applications/slack.desktop"_s, entry + wrong);
        EXPECT_TRUE(icon().isNull()) << wrong;
    }
}

} // namespace
