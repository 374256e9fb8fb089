#include "claude/ClaudeCodeMonitor.h"

#include "island/IslandDebugLogger.h"
#include "platform/linux/desktop/LinuxUserFiles.h"
#include "support/FakeMessageSocketServer.h"
#include "support/RealFiles.h"

#include <gmock/gmock.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using Status = ClaudeCodeStatus;

QByteArray message(const char *event, const char *status = "processing", const char *more = "")
{
    return QByteArray(R"({"session_id":"s1","cwd":"/home/x/demo/","event":"%1","status":"%2"%3})")
        .replace("%1", event)
        .replace("%2", status)
        .replace("%3", more);
}

/// The files of this machine's /usr/local do not count.
struct HomeFiles : LinuxUserFiles {
    bool exists(const QString &path) const override
    {
        return !path.startsWith(u"/usr/"_s) && LinuxUserFiles::exists(path);
    }
};

class ClaudeCodeMonitorTest : public RealFiles
{
protected:
    ClaudeCodeMonitorTest()
    {
        logger.setEnabled(true);
        QObject::connect(&monitor, &ClaudeCodeMonitor::currentSessionChanged,
                         [this] { published.append(u"session"_s); });
        QObject::connect(&monitor, &ClaudeCodeMonitor::statusChanged,
                         [this] { published.append(claudeCodeStatusText(monitor.status())); });
        QObject::connect(&monitor, &ClaudeCodeMonitor::isActiveChanged, [this] {
            published.append(monitor.isActive() ? u"active"_s : u"inactive"_s);
        });
    }

    void start()
    {
        monitor.start();
        loop.settle();
    }
    void send(const QByteArray &bytes)
    {
        server.send(bytes);
        loop.settle();
    }
    /// The texts logged since the last call.
    QStringList lines()
    {
        loop.settle();
        QStringList texts;
        QFile file(logger.logFile());
        if (!file.open(QIODevice::ReadOnly))
            return texts;
        file.seek(logRead);
        for (const auto &line :
             QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            if (line.contains(u"ClaudeCode"_s))
                texts.append(line.sliced(line.lastIndexOf(u"] "_s) + 2));
        }
        logRead = file.pos();
        return texts;
    }

    IslandDebugLogger logger{loop, path(u"state"_s)};
    FakeMessageSocketServer server{loop};
    HomeFiles files;
    ClaudeCodeMonitor monitor{loop, logger, server, files, {directory.path()}};
    QStringList published;
    qint64 logRead = 0;
};

TEST_F(ClaudeCodeMonitorTest, EveryEventHasItsStatusAndItsLine)
{
    struct {
        const char *event;
        const char *word;
        Status status;
    } const cases[] = {
        {"UserPromptSubmit", "x", Status::Working},
        {"PreCompact", "x", Status::Compacting},
        {"PreToolUse", "x", Status::Working},
        {"PermissionRequest", "x", Status::Waiting},
        {"PostToolUse", "x", Status::Working},
        {"Stop", "processing", Status::Idle},
        {"SessionStart", "waiting_for_input", Status::Working},
        {"SubagentStop", "x", Status::Idle},
        {"SessionEnd", "x", Status::Idle},
        {"Later", "waiting_for_input", Status::Idle},
        {"Later", "unknown", Status::Working},
        {"stop", "ended", Status::Working},
        {"", "", Status::Working},
    };
    start();
    lines();
    for (const auto &each : cases) {
        send(message(each.event, each.word));
        EXPECT_EQ(monitor.status(), each.status) << each.event;
        EXPECT_EQ(monitor.isActive(), each.status != Status::Idle) << each.event;
        EXPECT_EQ(monitor.currentSession()->status, each.status) << each.event;
        EXPECT_THAT(lines(), ElementsAre(u"ClaudeCode: event="_s + QLatin1StringView(each.event) +
                                         u" status="_s + claudeCodeStatusText(each.status) +
                                         u" tool=nil project=demo"_s));
    }
}

TEST_F(ClaudeCodeMonitorTest, AMinuteOfSilenceIsIdleAndKeepsTheSession)
{
    start();
    send(message("SessionStart", "waiting_for_input"));
    EXPECT_THAT(published, ElementsAre(u"session"_s, u"working"_s, u"active"_s));
    loop.advance(59s);
    send(message("PermissionRequest"));
    loop.advance(59'999ms);
    EXPECT_EQ(monitor.status(), Status::Waiting);
    published.clear();
    lines();
    loop.advance(1ms);
    EXPECT_THAT(published, ElementsAre(u"inactive"_s, u"idle"_s));
    EXPECT_EQ(monitor.currentSession()->status, Status::Waiting);
    EXPECT_THAT(lines(), ElementsAre(u"ClaudeCode: idle timeout — no events for 60s"_s));

    send(message("PreToolUse"));
    send(message("Stop"));
    loop.advance(1h);
    EXPECT_EQ(loop.wakeUps(), 1) << "idle, nobody waits for silence";
}

TEST_F(ClaudeCodeMonitorTest, ToolAndPromptStayUntilReplaced)
{
    start();
    send(message("UserPromptSubmit", "processing", R"(,"user_prompt":"don't \"stop\"")"));
    send(message("PreToolUse", "running_tool", R"(,"tool":"Bash")"));
    lines();
    send(message("PostToolUse").replace("s1", "s2").replace("/home/x/demo/", "/"));
    EXPECT_EQ(*monitor.currentSession(),
              (ClaudeCodeSession{u"s2"_s, u"/"_s, Status::Working, u"Running command"_s,
                                 u"don't \"stop\""_s, loop.date()}));
    EXPECT_THAT(lines(),
                ElementsAre(u"ClaudeCode: event=PostToolUse status=working tool=nil project=/"_s));
    for (const auto &[tool, label] : {std::pair{"TodoWrite", "Updating tasks"}, {"bash", "bash"}}) {
        send(message("PreToolUse", "", QByteArray(R"(,"tool":"%")").replace("%", tool)));
        EXPECT_EQ(monitor.currentSession()->currentTool, QLatin1StringView(label));
    }
}

TEST_F(ClaudeCodeMonitorTest, LogsItsLifeInOrder)
{
    start();
    EXPECT_THAT(lines(),
                ElementsAre(u"ClaudeCodeMonitor: starting socket server"_s,
                            u"ClaudeCode: Claude Code not found, skipping hook install"_s,
                            u"ClaudeCodeMonitor: socket server listening on " + server.path));
    EXPECT_EQ(server.path, u"/tmp/quillmere-claude.sock"_s);
    EXPECT_FALSE(QDir(path(u".claude"_s)).exists());

    send(message("PreToolUse"));
    server.send(message("Stop")); // on its way
    monitor.uninstallHooks();
    lines();
    send(R"({"session_id":"s","cwd":"/","event":"Stop"})");
    EXPECT_THAT(lines(),
                ElementsAre(u"ClaudeCodeMonitor: failed to decode event: no \"status\""_s));
    server.send(message("PreToolUse"));
    monitor.uninstallHooks();
    published.clear();
    monitor.stop();
    EXPECT_THAT(published, ElementsAre(u"session"_s));
    EXPECT_THAT(lines(),
                ElementsAre(u"ClaudeCode: hook uninstalled"_s, u"ClaudeCodeMonitor: stopping"_s));
    EXPECT_EQ(server.path, QString());
    EXPECT_FALSE(monitor.currentSession()) << "no event arrives after the stop";
    loop.advance(2min);
    EXPECT_THAT(lines(), IsEmpty());

    ASSERT_TRUE(QDir().mkpath(path(u".local/bin/claude"_s)));
    monitor.start();
    monitor.stop(); // before it listens
    monitor.start();
    const auto life = lines();
    EXPECT_EQ(life.count(u"ClaudeCodeMonitor: socket server listening on " + server.path), 1);
    EXPECT_THAT(life.last(2),
                ElementsAre(u"ClaudeCode: hooks registered in settings.json"_s,
                            u"ClaudeCodeMonitor: socket server listening on " + server.path));
}

TEST_F(ClaudeCodeMonitorTest, SaysWhyNobodyCanConnectAndGoesOn)
{
    for (const auto &[step, line] :
         {std::pair{ListenError::Step::CreateSocket,
                    u"ClaudeCodeMonitor: failed to create socket"_s},
          {ListenError::Step::Bind, u"ClaudeCodeMonitor: bind failed: Address already in use"_s},
          {ListenError::Step::Listen, u"ClaudeCodeMonitor: listen failed"_s}}) {
        server.error = ListenError{step, u"Address already in use"_s};
        start();
        EXPECT_EQ(lines().last(), line);
        monitor.stop();
    }
}

TEST(HookEventTest, TakesWhatItKnowsAndRefusesTheWrongType)
{
    const QByteArray base = R"("session_id":"s","cwd":"/","event":"e","status":"w")";
    const HookEvent plain{u"s"_s, u"/"_s, u"e"_s, u"w"_s};
    const auto with = [&](auto field, auto value) {
        HookEvent event = plain;
        event.*field = value;
        return event;
    };
    using Inputs = QHash<QString, AnyCodableValue>;
    const std::pair<QByteArray, HookEvent> accepted[] = {
        {R"(,"tool":"x","tool":null,"tool_input":null,"interactive":null,"later":[{"cwd":2}])",
         plain},
        {R"(,"interactive":true)", with(&HookEvent::interactive, true)},
        {R"(,"tool_input":{"a":"b","i":3,"d":3.5,"t":true,"l":[1,{"a":2}],"o":{"i":4},"u":2e19})",
         with(&HookEvent::toolInput, Inputs{{u"a"_s, u"b"_s},
                                            {u"i"_s, qint64{3}},
                                            {u"d"_s, 3.5},
                                            {u"t"_s, true},
                                            {u"l"_s, nullptr},
                                            {u"o"_s, nullptr},
                                            {u"u"_s, 2e19}})},
        {R"(,"user_prompt":"\ud83d\ude00\u0000\n")",
         with(&HookEvent::userPrompt, u"😀"_s + QChar(0) + u'\n')},
        {",\"user_prompt\":\"x" + QByteArray("😀").repeated(40'000) + '"',
         with(&HookEvent::userPrompt, u'x' + u"😀"_s.repeated(32'767))},
    };
    for (const auto &[more, event] : accepted)
        EXPECT_EQ(decodeHookEvent('{' + base + more + '}'), event) << more.left(60).constData();
    for (const char *const more :
         {R"(,"tool":3)", R"(,"tool_input":[])", R"(,"interactive":1)", R"(,"cwd":null)",
          R"(,"status":{})", ",\"a\":\"\xff\"", "} {", ",", R"(,"tool":)"})
        EXPECT_FALSE(decodeHookEvent('{' + base + more + '}')) << more;
    EXPECT_EQ(decodeHookEvent('{' + base + ",\"x\":" + QByteArray(1'001, '[')).error(),
              u"nested too deeply"_s);
    for (const QByteArray &whole : {QByteArray("[]"), QByteArray("7"), QByteArray(1'000'000, '[')})
        EXPECT_FALSE(decodeHookEvent(whole)) << whole.left(60).constData();
}

} // namespace
} // namespace quillmere
