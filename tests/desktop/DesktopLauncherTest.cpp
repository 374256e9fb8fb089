#include "platform/linux/desktop/DesktopLauncher.h"

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

} // namespace
