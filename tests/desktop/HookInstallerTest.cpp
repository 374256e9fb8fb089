#include "claude/HookInstaller.h"

#include "claude/HookScript.h"
#include "platform/linux/desktop/LinuxUserFiles.h"
#include "support/RealFiles.h"

#include <QDeadlineTimer>
#include <QFileInfo>

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <atomic>
#include <random>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::json;
using testing::IsEmpty;
using testing::SizeIs;

const QString command = u"/home/x/.claude/hooks/quillmere-hook.sh"_s;

Json parse(const QByteArray &text)
{
    return Json::parse(text.begin(), text.end(), nullptr, false);
}

Json ourGroup(const QString &path)
{
    return {{"hooks", Json::array({{{"type", "command"}, {"command", path.toStdString()}}})}};
}

const char *const ourEvents[] = {
    "UserPromptSubmit",  "SessionStart", "PreToolUse",   "PostToolUse", "PreCompact",
    "PermissionRequest", "Stop",         "SubagentStop", "SessionEnd"};

/// Well-formed settings as other tools leave them: any values, groups of others for any event.
struct RandomSettings {
    std::mt19937 random;

    unsigned pick(unsigned below) { return static_cast<unsigned>(random()) % below; }
    std::string text()
    {
        const char *const parts[] = {"a", "ä", "😀", "\"", "\\", "\n", "/quillmere", " hook", ""};
        return std::string(parts[pick(9)]) + parts[pick(9)] + std::string(pick(2), '\0');
    }
    Json value(unsigned depth)
    {
        const Json scalars[] = {nullptr, true,   INT64_MIN, UINT64_MAX, 9007199254740993, 0.1,
                                -0.0,    5e-324, 2.0,       1.7e308,    text(),           ""};
        if (depth == 0 || pick(2) == 0)
            return scalars[pick(std::size(scalars))];
        return pick(2) == 0 ? Json::array({value(depth - 1), value(0)}) : object(depth - 1);
    }
    Json object(unsigned depth)
    {
        Json made = Json::object();
        for (unsigned members = pick(5); members > 0; --members)
            made[text()] = value(depth);
        return made;
    }
    Json settings()
    {
        Json made = object(3);
        for (const char *const event : ourEvents)
            for (unsigned groups = pick(3); groups > 0; --groups) {
                made["hooks"][event].push_back(object(1));
                made["hooks"][event].back()["hooks"] = {object(1), {{"command", text()}}};
            }
        return made;
    }
};

TEST(HookSettingsTest, ComingAndGoingLeavesNoTrace)
{
    for (unsigned seed = 0; seed < 1'000; ++seed) {
        const Json settings = RandomSettings{std::mt19937(seed)}.settings();
        const auto text = QByteArray::fromStdString(settings.dump());
        const auto with = withHooks(text, command);
        ASSERT_TRUE(with && !with->losesForeign) << text.constData();
        Json expected = settings;
        for (const char *const event : ourEvents)
            expected["hooks"][event].push_back(ourGroup(command));
        ASSERT_EQ(parse(with->text), expected);
        ASSERT_EQ(withHooks(with->text, command)->text, with->text);
        const auto without = withoutHooks(with->text);
        ASSERT_TRUE(without && !without->losesForeign);
        ASSERT_EQ(parse(without->text).dump(), settings.dump()) << "bit by bit";
        ASSERT_TRUE(refersToHook(with->text) && !refersToHook(without->text));
    }
}

TEST(HookSettingsTest, TakesOutOldEntriesAndSaysWhatIsLost)
{
    const QByteArray ours = R"({"hooks":[{"command":"x/quillmere-hook.sh --old"}]})";
    const QByteArray odd =
        R"({"hooks":{"command":"quillmere-hook"}},{},{"hooks":[{"command":7},[]]})";
    struct {
        QByteArray stop;
        QByteArray left;
        bool lost;
    } const cases[] = {
        {"[" + ours + "," + odd + "," + ours + "," + ours + "]", "[" + odd + "]", false},
        {R"([{"hooks":[{"command":"quillmere-hook"},{"command":"x"}]}])", "[]", true},
        {"[" + odd + ",7]", "[]", true},
        {R"({"a":1})", "[]", true},
        {"null", "[]", false},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.stop.constData());
        const QByteArray text = R"({"z":1,"hooks":{"Stop":)" + each.stop + "}}";
        Json left = parse(each.left);
        const auto without = withoutHooks(text);
        Json expected = {{"z", 1}};
        if (!left.empty())
            expected["hooks"]["Stop"] = left;
        EXPECT_EQ(parse(without->text), expected);
        const auto with = withHooks(text, command);
        left.push_back(ourGroup(command));
        EXPECT_EQ(parse(with->text)["hooks"]["Stop"], left);
        EXPECT_TRUE(with->losesForeign == each.lost && without->losesForeign == each.lost);
    }
    EXPECT_EQ(withoutHooks(R"({"b":{"d":[],"c":1},"a":2.0})")->text,
              "{\n  \"a\": 2.0,\n  \"b\": {\n    \"c\": 1,\n    \"d\": []\n  }\n}\n");
    for (const char *const bad : {"{,}", "[1]", "{\"a\":\"\xff\"}"})
        EXPECT_TRUE(!withoutHooks(bad) && withHooks(bad, command)->losesForeign) << bad;
    EXPECT_FALSE(withHooks(" \n", command)->losesForeign);
    const QByteArray deep = QByteArray(9'999, '[') + QByteArray(9'999, ']');
    EXPECT_FALSE(withHooks(R"({"a":1e999})", command));
    EXPECT_FALSE(withHooks(QByteArray("{\"a\":" + deep + '}'), command));
}

const QString settingsFile = u".claude/settings.json"_s;
const QString script = u".claude/hooks/quillmere-hook.sh"_s;

class HookInstallerTest : public RealFiles
{
protected:
    HookInstallerTest() { QDir(directory.path()).mkdir(u".claude"_s); }

    void install()
    {
        installer.installScript();
        installer.registerHooks();
    }
    bool isRegistered() const { return refersToHook(read(settingsFile)); }
    mode_t mode(const QString &name) const
    {
        struct stat status = {};
        ::stat(qPrintable(path(name)), &status);
        return status.st_mode & 07777;
    }
    QStringList claudeFiles() const
    {
        return QDir(path(u".claude"_s)).entryList(QDir::Files | QDir::Hidden);
    }
    QByteArray onlyCopy() const
    {
        const auto copies = claudeFiles().filter(u"settings.json.before-quillmere-"_s);
        EXPECT_THAT(copies, SizeIs(1));
        return read(u".claude/"_s + copies.value(0));
    }

    LinuxUserFiles files;
    HookInstaller installer{files, loop, directory.path(), u"/tmp/x.sock"_s};
};

TEST_F(HookInstallerTest, InstallsAndLeavesAsItCame)
{
    write(u"dotfile"_s, "{\n  \"model\": 9007199254740993\n}\n");
    ASSERT_EQ(::chmod(qPrintable(path(u"dotfile"_s)), 0640), 0);
    QFile::link(u"../dotfile"_s, path(settingsFile));
    install();
    EXPECT_EQ(mode(script), 0755U);
    EXPECT_EQ(parse(read(settingsFile))["hooks"]["Stop"], Json::array({ourGroup(path(script))}));
    struct stat once = {};
    struct stat twice = {};
    ::stat(qPrintable(path(settingsFile)), &once);
    write(script, "tampered with");
    install();
    ::stat(qPrintable(path(settingsFile)), &twice);
    EXPECT_EQ(once.st_ino, twice.st_ino) << "settings that are right already are not touched";
    EXPECT_EQ(read(script), hookScript(u"/tmp/x.sock"_s));
    installer.uninstall();
    EXPECT_EQ(read(settingsFile), "{\n  \"model\": 9007199254740993\n}\n");
    EXPECT_EQ(mode(u"dotfile"_s), 0640U);
    EXPECT_TRUE(QFileInfo(path(settingsFile)).isSymLink());
    EXPECT_FALSE(QFile::exists(path(script)));
    EXPECT_THAT(claudeFiles(), SizeIs(1));
    EXPECT_THAT(log.take(), IsEmpty());

    QFile::remove(path(settingsFile));
    installer.uninstall();
    EXPECT_FALSE(QFile::exists(path(settingsFile)));
    install();
    EXPECT_EQ(mode(settingsFile), 0600U);
    EXPECT_TRUE(isRegistered());
}

TEST_F(HookInstallerTest, KeepsACopyOfWhatItCannotUseAndMakesNoHome)
{
    HookInstaller homeless(files, loop, path(u"gone"_s), u"/tmp/x.sock"_s);
    homeless.installScript();
    homeless.registerHooks();
    EXPECT_FALSE(QFile::exists(path(u"gone"_s)));
    log.take();
    const QByteArray broken = "{\"model\": \"x\",}";
    write(settingsFile, broken);
    installer.uninstall();
    EXPECT_EQ(read(settingsFile), broken);
    EXPECT_THAT(claudeFiles(), SizeIs(1));
    install();
    EXPECT_TRUE(isRegistered());
    EXPECT_EQ(onlyCopy(), broken);
    EXPECT_THAT(log.take(), SizeIs(1));
    write(settingsFile, broken);
    install();
    EXPECT_THAT(claudeFiles(), SizeIs(3)) << "the first copy stays";
}

TEST_F(HookInstallerTest, ScriptAndEntriesGoTogether)
{
    install();
    const auto byHand = QByteArray(R"({"hooks":{"Notification":["/quillmere-hook.sh"]}})");
    for (const QByteArray &left : {byHand, byHand.chopped(1)}) {
        write(settingsFile, left);
        installer.uninstall();
        EXPECT_TRUE(QFile::exists(path(script)));
        EXPECT_THAT(log.take(), SizeIs(1));
    }
    QFile::remove(path(settingsFile));
    install();
    ASSERT_TRUE(isRegistered());
    QDir(path(u".claude/hooks"_s)).removeRecursively();
    write(u".claude/hooks"_s, "in the way");
    install();
    EXPECT_FALSE(isRegistered());
}

/// Somebody else edits the settings right after they were read.
struct EditedMeanwhile : LinuxUserFiles {
    FileSnapshot read(const QString &path, qint64 limit) const override
    {
        auto snapshot = LinuxUserFiles::read(path, limit);
        if (!edits.empty()) {
            const auto edit = std::move(edits.front());
            edits.erase(edits.begin());
            edit();
        }
        return snapshot;
    }
    mutable std::vector<std::function<void()>> edits;
};

TEST_F(HookInstallerTest, ARegistrationMeetsAnEditAndKeepsIt)
{
    EditedMeanwhile meanwhile;
    HookInstaller busy(meanwhile, loop, directory.path(), u"/tmp/x.sock"_s);
    write(settingsFile, R"({"a":1})");
    busy.installScript();
    meanwhile.edits = {
        [&] { write(settingsFile, R"({"a":2})"); }, [&] { replace(settingsFile, R"({"a":3})"); },
        [&] { QFile::remove(path(settingsFile)); }, [&] { write(settingsFile, R"({"a":5})"); }};
    busy.registerHooks();
    EXPECT_THAT(meanwhile.edits, IsEmpty());
    EXPECT_EQ(parse(read(settingsFile))["a"], 5);
    EXPECT_TRUE(isRegistered());
    EXPECT_THAT(claudeFiles(), SizeIs(1));
}

TEST_F(HookInstallerTest, NoEditIsLostInAStormOfThem)
{
    write(settingsFile, R"({"n":0})");
    std::atomic<bool> done = false;
    int lost = 0;
    std::thread editor([&] {
        for (int n = 1; n <= 1'000 && lost == 0; ++n) {
            replace(settingsFile, QByteArray(R"({"n":%})").replace('%', QByteArray::number(n)));
            // Until it is given back, the file before the edit may be there: as long as the other
            // thread takes, on a busy machine.
            const QDeadlineTimer limit(20'000);
            bool isThere = false;
            while (!isThere && !limit.hasExpired())
                isThere = parse(read(settingsFile)).value("n", 0) == n;
            lost += isThere ? 0 : 1;
        }
        done = true;
    });
    while (!done) {
        install();
        installer.uninstall();
    }
    editor.join();
    install();
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(parse(read(settingsFile))["n"], 1'000);
    EXPECT_TRUE(isRegistered());
    EXPECT_THAT(claudeFiles(), SizeIs(1));
}

TEST_F(HookInstallerTest, AFullOrReadOnlyDiskChangesNothing)
{
    const auto home = path(u".claude"_s).toUtf8();
    if (::mount("tmpfs", home.constData(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "may not mount";
    const Task unmount([&] { ::umount2(home.constData(), MNT_DETACH); });
    const QByteArray settings = "{\"text\": \"" + QByteArray(20'000, 'x') + "\",}";
    write(settingsFile, settings);
    install();
    ASSERT_TRUE(isRegistered());
    EXPECT_EQ(onlyCopy(), settings);
    const auto registered = read(settingsFile);
    const auto whole = read(script);

    QFile filler(path(u".claude/filler"_s));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write("x", 1) == 1) {
    }
    const auto files = claudeFiles();
    for (const unsigned long flags : {0UL, static_cast<unsigned long>(MS_RDONLY)}) {
        filler.close();
        ASSERT_EQ(::mount("tmpfs", home.constData(), "tmpfs", MS_REMOUNT | flags, "size=64k"), 0);
        log.take();
        install();
        installer.uninstall();
        EXPECT_EQ(read(settingsFile), registered);
        EXPECT_EQ(read(script), whole) << "still registered, so it has to stay";
        EXPECT_EQ(claudeFiles(), files);
        EXPECT_FALSE(log.take().isEmpty());
    }
}

} // namespace
} // namespace quillmere
