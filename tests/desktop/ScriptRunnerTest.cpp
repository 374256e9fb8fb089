#include "platform/linux/scripts/ChildProcess.h"
#include "platform/linux/scripts/ProcessScriptRunner.h"

#include "support/Eventually.h"
#include "support/RealFiles.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace quillmere;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// Real programs, in an empty folder of the user's and one of ours; only their time limit is the
/// test's to spend.
struct ScriptRunnerTest : RealFiles {
    ScriptRunnerTest()
    {
        QDir(directory.path()).mkdir(u"user"_s);
        QDir(directory.path()).mkdir(u"ours"_s);
        qputenv("HOME", directory.path().toUtf8());
        runner.emplace(loop, ProcessScriptRunner::Places{path(u"user"_s), path(u"ours"_s)});
    }
    ~ScriptRunnerTest() override
    {
        runner.reset();
        siginfo_t child;
        EXPECT_TRUE(eventually([&child] {
            return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT | __WALL) < 0;
        })) << "a program outlived its question";
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void install(const QString &name, const QByteArray &script, mode_t mode = 0700)
    {
        // A new file each time: the shell of the one before may still be reading.
        replace(name, "#!/bin/sh\n" + script + '\n');
        ::chmod(qPrintable(path(name)), mode);
    }

    bool eventually(const std::function<bool()> &condition)
    {
        return quillmere::eventually(condition, [this] { loop.settle(); });
    }

    Task ask(QLatin1StringView question, const QStringList &arguments = {})
    {
        answer.reset();
        return runner->run(question, arguments, [this](const ScriptAnswer &given) {
            EXPECT_FALSE(answer) << "answered twice";
            answer = given;
        });
    }

    ScriptAnswer answerTo(QLatin1StringView question, const QStringList &arguments = {})
    {
        const Task task = ask(question, arguments);
        EXPECT_FALSE(answer) << "answered from within";
        EXPECT_TRUE(eventually([this] { return answer.has_value(); })) << question.data();
        return answer.value_or(ScriptAnswer());
    }

    /// The process whose number a program has written into `file`.
    pid_t processIn(const QString &file)
    {
        EXPECT_TRUE(eventually([&] { return read(file).endsWith('\n'); }));
        return read(file).trimmed().toInt();
    }
    bool isGone(pid_t process)
    {
        return eventually([process] {
            QFile status(u"/proc/%1/stat"_s.arg(process)); // an orphan may be left unburied here
            return !status.open(QIODevice::ReadOnly) || status.readAll().contains(") Z ");
        });
    }

    std::optional<ProcessScriptRunner> runner;
    std::optional<ScriptAnswer> answer;
};

TEST_F(ScriptRunnerTest, AnswersAsTheProgramDoes)
{
    struct Case {
        const char *script;
        bool hasSucceeded;
        QByteArray output, errors;
    };
    const Case cases[] = {
        {R"(printf ' %s|' "$@"; echo; echo " ")", true, "a b| $(touch x)| *|", ""},
        {"pwd; cat; readlink -f /proc/self/fd/0", true, directory.path().toUtf8() + "\n/dev/null",
         ""},
        {"echo half; echo why >&2; exit 3", false, "", "why"},
        {"echo half; kill -SEGV $$", false, "", ""},
        {"seq 9 >&2; echo fine", true, "fine", "1\n2\n3\n4\n5"},
        {"head -c 3000000 /dev/zero >&2; echo fine", true, "fine",
         QByteArray(ChildProcess::errorsLimit, '\0')},
        {"head -c 262143 /dev/zero; echo", true, QByteArray(262143, '\0'), ""},
        {"sleep 1000 & echo fine", true, "fine", ""},
    };
    for (const Case &each : cases) {
        install(u"ours/front-tab"_s, each.script);
        const auto given = answerTo(scripts::frontTab, {u"a b"_s, u"$(touch x)"_s, u"*"_s});
        EXPECT_TRUE(given.hasRun) << each.script;
        EXPECT_EQ(given.hasSucceeded, each.hasSucceeded) << each.script;
        EXPECT_EQ(given.output, each.output) << each.script;
        EXPECT_EQ(given.errors, each.errors) << each.script;
    }
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(ScriptRunnerTest, TheUsersProgramGoesFirstIfItCanRun)
{
    EXPECT_FALSE(answerTo(scripts::nowPlaying).hasRun);
    install(u"ours/front-tab"_s, "echo ours");
    QDir(path(u"user"_s)).mkdir(u"front-tab"_s);
    EXPECT_EQ(answerTo(scripts::frontTab).output, "ours");
    EXPECT_THAT(log.take(), IsEmpty());

    QDir(path(u"user"_s)).rmdir(u"front-tab"_s);
    install(u"user/front-tab"_s, "echo user", 0600);
    EXPECT_EQ(answerTo(scripts::frontTab).output, "ours");
    answerTo(scripts::frontTab);
    EXPECT_EQ(log.take().join(u'\n'),
              u"[Quillmere] %1 is not executable"_s.arg(path(u"user/front-tab"_s)));

    install(u"user/front-tab"_s, "echo user");
    EXPECT_EQ(answerTo(scripts::frontTab).output, "user");
    write(u"user/front-tab"_s, "#!/no/such/interpreter\n");
    EXPECT_FALSE(answerTo(scripts::frontTab).hasRun);
    EXPECT_THAT(log.take().join(u'\n').toStdString(), HasSubstr("cannot be started"));
}

TEST_F(ScriptRunnerTest, EndsTheWholeGroupAtItsLimitsAndWithItsTask)
{
    const QByteArray preface = "sh -c 'echo $$ >child.new; mv child.new child; exec sleep 1000' &\n"
                               "while ! test -e child; do :; done\n";
    struct Case {
        const char *script;
        std::function<void(Task &)> end;
        const char *complaint;
    };
    const Case cases[] = {
        {"exec sleep 1000", [this](Task &) { advance(ProcessScriptRunner::timeLimit); },
         "takes longer than 5 s"},
        {"trap '' TERM HUP INT; exec yes", [](Task &) {}, "prints more than 256 KiB"},
        {"exec sleep 1000", [](Task &task) { task.cancel(); }, ""},
        {"exec sleep 1000", [this](Task &) { runner.reset(); }, ""},
        {"exec echo fine", [](Task &) {}, ""},
    };
    for (const Case &each : cases) {
        QFile::remove(path(u"child"_s));
        install(u"ours/browser-tabs"_s, preface + each.script);
        Task task = ask(scripts::browserTabs);
        const pid_t child = processIn(u"child"_s);
        advance(ProcessScriptRunner::timeLimit - 1s);
        each.end(task);
        EXPECT_TRUE(isGone(child)) << each.script;
        const bool isTold = *each.complaint || QByteArray(each.script).contains("fine");
        EXPECT_EQ(isTold && eventually([this] { return answer.has_value(); }), isTold);
        EXPECT_EQ(answer.has_value(), isTold);
        EXPECT_THAT(log.take().join(u'\n').toStdString(), HasSubstr(each.complaint));
        if (!runner)
            runner.emplace(loop, ProcessScriptRunner::Places{path(u"user"_s), path(u"ours"_s)});
    }
}

TEST_F(ScriptRunnerTest, AQuestionMayBeGivenUpAtAnyTime)
{
    Task early = ask(scripts::nowPlaying);
    early.cancel();
    loop.settle();
    EXPECT_FALSE(answer);

    install(u"ours/front-tab"_s, "echo fine");
    QByteArray output;
    Task task = runner->run(scripts::frontTab, {}, [&](const ScriptAnswer &given) {
        task.cancel(); // also while it is being answered
        output = given.output;
    });
    EXPECT_TRUE(eventually([&output] { return !output.isEmpty(); }));
}

} // namespace
