#include "platform/linux/desktop/AutostartLoginItem.h"

#include "support/RealFiles.h"

#include <sys/stat.h>

using namespace quillmere;
using namespace Qt::StringLiterals;

namespace {

const QString entry = u"autostart/com.quillmere.Quillmere.desktop"_s;

class AutostartLoginItemTest : public RealFiles
{
protected:
    void registerAs(const QString &program)
    {
        AutostartLoginItem(loop, directory.path(), program).registerItem();
        loop.settle();
    }
    void unregister()
    {
        AutostartLoginItem(loop, directory.path(), u"/usr/bin/quillmere"_s).unregisterItem();
        loop.settle();
    }
};

TEST_F(AutostartLoginItemTest, AppearsAndGoes)
{
    unregister();
    EXPECT_FALSE(QFile::exists(path(entry)));
    registerAs(u"/usr/bin/quillmere"_s);
    EXPECT_TRUE(read(entry).startsWith("[Desktop Entry]\nType=Application\n"));
    EXPECT_TRUE(read(entry).contains("\nExec=/usr/bin/quillmere\n"));
    registerAs(u"/opt/quillmere"_s);
    EXPECT_TRUE(read(entry).contains("\nExec=/opt/quillmere\n")) << "the program moved";
    unregister();
    EXPECT_FALSE(QFile::exists(path(entry)));
}

TEST_F(AutostartLoginItemTest, LeavesAnEntryAloneThatDoesItsWork)
{
    registerAs(u"/usr/bin/quillmere"_s);
    const QByteArray wanted = read(entry);
    write(entry, wanted + "X-GNOME-Autostart-Delay=5\n");
    registerAs(u"/usr/bin/quillmere"_s);
    EXPECT_EQ(read(entry), wanted + "X-GNOME-Autostart-Delay=5\n");
    for (const char *off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        write(entry, wanted + off);
        registerAs(u"/usr/bin/quillmere"_s);
        EXPECT_EQ(read(entry), wanted) << off;
    }
}

TEST_F(AutostartLoginItemTest, FailuresAreDropped)
{
    QDir(directory.path()).mkpath(entry);
    registerAs(u"/usr/bin/quillmere"_s);
    unregister();
    EXPECT_TRUE(QFileInfo(path(entry)).isDir());
    QDir(path(u"autostart"_s)).removeRecursively();
    write(u"autostart"_s, "a file where the directory should be");
    registerAs(u"/usr/bin/quillmere"_s);
    EXPECT_EQ(read(u"autostart"_s), "a file where the directory should be");
    EXPECT_TRUE(log.take().isEmpty());
}

TEST(ExecValueTest, QuotesByTheRulesOfDesktopEntries)
{
    const std::pair<QString, QString> cases[] = {
        {u"/usr/bin/quillmere"_s, u"/usr/bin/quillmere"_s},
        {u"/home/ä/quillmere"_s, u"/home/ä/quillmere"_s},
        {u"/a b/q"_s, u"\"/a b/q\""_s},
        {u"/100%/q"_s, u"/100%%/q"_s},
        {u"/it's/q"_s, u"\"/it's/q\""_s},
        {u"/a$b/q"_s, uR"("/a\\$b/q")"_s},
        {u"/a\"b/q"_s, uR"("/a\\"b/q")"_s},
        {u"/a`b/q"_s, uR"("/a\\`b/q")"_s},
        {u"/a\\b/q"_s, uR"("/a\\\\b/q")"_s},
        {u"/a\nb/q"_s, uR"("/a\nb/q")"_s},
    };
    for (const auto &[program, value] : cases)
        EXPECT_EQ(execValue(program), value) << qPrintable(program);
}

} // namespace
