#include "platform/linux/scripts/ProcessScriptRunner.h"

#include "platform/linux/scripts/ChildProcess.h"

#include <QFileInfo>
#include <QMap>

#include <map>
#include <optional>

namespace quillmere {

namespace {

constexpr int mostErrorLines = 5;

QByteArray firstLines(const QByteArray &errors)
{
    return errors.split('\n').mid(0, mostErrorLines).join('\n').trimmed();
}

/// What to complain about; empty if nothing.
QString complaintAbout(std::optional<ChildProcess::End> end)
{
    if (!end)
        return QStringLiteral("takes longer than %1 s")
            .arg(std::chrono::round<std::chrono::seconds>(ProcessScriptRunner::timeLimit).count());
    if (*end == ChildProcess::End::TooVerbose)
        return QStringLiteral("prints more than %1 KiB").arg(ChildProcess::outputLimit / 1024);
    if (*end == ChildProcess::End::NotStarted)
        return QStringLiteral("cannot be started");
    return {};
}

} // namespace

struct ProcessScriptRunner::State : std::enable_shared_from_this<State> {
    struct Run {
        std::function<void(const ScriptAnswer &)> done;
        std::optional<ChildProcess> child{};
        Task limit{};
    };

    State(RunLoop &loop, Places where)
        : runLoop(loop)
        , places(std::move(where))
    {
    }

    /// Empty if nobody has a program for the question.
    QString programFor(const QString &question);
    void start(int id, const QString &program, const QStringList &arguments);
    /// Absent: it is not over, but its time is.
    void ended(int id, const QString &program, std::optional<ChildProcess::End> end);
    void answerLater(int id, ScriptAnswer answer);
    void answer(int id, const ScriptAnswer &answer);
    void complain(const QString &program, const QString &complaint);

    RunLoop &runLoop;
    const Places places;
    std::map<int, Run> runs;
    int lastID = 0;
    QMap<QString, QString> complaints; // by program: the last one
};

ProcessScriptRunner::ProcessScriptRunner(RunLoop &runLoop, Places places)
    : state_(std::make_shared<State>(runLoop, std::move(places)))
{
}

ProcessScriptRunner::~ProcessScriptRunner() = default;

Task ProcessScriptRunner::run(QLatin1StringView question, const QStringList &arguments,
                              std::function<void(const ScriptAnswer &)> done)
{
    const int id = ++state_->lastID;
    state_->runs[id].done = std::move(done);
    if (const QString program = state_->programFor(question); program.isEmpty())
        state_->answerLater(id, {});
    else
        state_->start(id, program, arguments);
    return Task([weak = std::weak_ptr(state_), id] {
        if (const auto state = weak.lock())
            state->runs.erase(id);
    });
}

QString ProcessScriptRunner::State::programFor(const QString &question)
{
    for (const QString &folder : {places.replacements, places.builtIn}) {
        QString program = folder + u'/' + question;
        const QFileInfo info(program);
        if (!info.isFile())
            continue;
        if (info.isExecutable())
            return program;
        complain(program, QStringLiteral("is not executable"));
    }
    return {};
}

void ProcessScriptRunner::State::start(int id, const QString &program, const QStringList &arguments)
{
    Run &run = runs.at(id);
    const auto over = [this, id, program](std::optional<ChildProcess::End> end) {
        ended(id, program, end);
    };
    run.limit = runLoop.after(timeLimit, [over] { over(std::nullopt); });
    run.child.emplace(program, arguments, over);
}

void ProcessScriptRunner::State::ended(int id, const QString &program,
                                       std::optional<ChildProcess::End> end)
{
    // The child is asked for its output later, as it may still be under construction.
    runLoop.post([weak = weak_from_this(), id, program, end] {
        const auto state = weak.lock();
        const auto found = state ? state->runs.find(id) : std::map<int, Run>::iterator();
        if (!state || found == state->runs.end())
            return;
        state->complain(program, complaintAbout(end));
        const ChildProcess &child = *found->second.child;
        const bool hasSucceeded = end == ChildProcess::End::Succeeded;
        state->answer(id, {end != ChildProcess::End::NotStarted, hasSucceeded,
                           hasSucceeded ? child.output().trimmed() : QByteArray(),
                           firstLines(child.errors())});
    });
}

void ProcessScriptRunner::State::answerLater(int id, ScriptAnswer answer)
{
    runLoop.post([weak = weak_from_this(), id, answer = std::move(answer)] {
        if (const auto state = weak.lock())
            state->answer(id, answer);
    });
}

void ProcessScriptRunner::State::answer(int id, const ScriptAnswer &answer)
{
    const auto run = runs.extract(id);
    if (run)
        run.mapped().done(answer);
}

void ProcessScriptRunner::State::complain(const QString &program, const QString &complaint)
{
    if (complaints.value(program) == complaint)
        return;
    complaints.insert(program, complaint);
    if (!complaint.isEmpty())
        qWarning("[Quillmere] %s %s", qUtf8Printable(program), qUtf8Printable(complaint));
}

} // namespace quillmere
